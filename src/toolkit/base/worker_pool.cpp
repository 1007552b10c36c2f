#include "toolkit/base/worker_pool.h"

#include <algorithm>
#include <memory>

#include <QtCore/QCoreApplication>
#include <QtCore/QEventLoop>
#include <QtCore/QProcess>
#include <QtCore/QTimer>

namespace toolkit {
namespace {

QString qPath(const std::filesystem::path& path) {
    return QString::fromStdU16String(path.u16string());
}

QStringList argumentsOf(const WorkerPool& pool) {
    QStringList arguments;
    for (const std::string& argument : pool.arguments)
        arguments.append(QString::fromStdString(argument));
    return arguments;
}

QProcessEnvironment environmentOf(const WorkerPool& pool) {
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const auto& [name, value] : pool.environment) {
        if (value.empty())
            environment.remove(QString::fromStdString(name));
        else
            environment.insert(QString::fromStdString(name), QString::fromStdString(value));
    }
    return environment;
}

struct Worker {
    QProcess process;
    QByteArray told;
    bool isReady = false;
    bool isFed = true; ///< whether its input is open
    std::optional<std::size_t> task{};
};

class Running {
  public:
    explicit Running(const WorkerPool& pool) : pool_(pool) {}

    std::optional<std::string> run() {
        for (int i = 0; i < pool_.workers; ++i) startWorker();
        QTimer timer;
        QObject::connect(&timer, &QTimer::timeout, [this] { look(); });
        constexpr int often = 50; // milliseconds
        timer.start(often);
        if (!isOver()) loop_.exec();
        return failure_;
    }

  private:
    void startWorker() {
        workers_.push_back(std::make_unique<Worker>());
        Worker& worker = *workers_.back();
        ++alive_;
        QProcess& process = worker.process;
        process.setProcessEnvironment(environmentOf(pool_));
        process.setStandardErrorFile(QProcess::nullDevice());
        QObject::connect(&process, &QProcess::readyReadStandardOutput,
                         [this, &worker] { listen(worker); });
        QObject::connect(&process, &QProcess::finished, [this, &worker] { bury(worker); });
        QObject::connect(&process, &QProcess::errorOccurred,
                         [this, &worker](QProcess::ProcessError error) {
                             if (error == QProcess::FailedToStart) bury(worker);
                         });
        const QString program =
            pool_.program.empty() ? QCoreApplication::applicationFilePath() : qPath(pool_.program);
        process.start(program, argumentsOf(pool_));
    }

    void look() {
        if (!isStopped_ && pool_.isStopped && pool_.isStopped()) stop();
    }

    void stop() {
        isStopped_ = true;
        for (const auto& worker : workers_)
            if (!worker->task) dismiss(*worker);
    }

    static void dismiss(Worker& worker) {
        if (std::exchange(worker.isFed, false)) worker.process.closeWriteChannel();
    }

    void listen(Worker& worker) {
        worker.told += worker.process.readAllStandardOutput();
        for (auto end = worker.told.indexOf('\0'); end >= 0; end = worker.told.indexOf('\0')) {
            const std::string text = worker.told.first(end).toStdString();
            worker.told.remove(0, end + 1);
            hear(worker, text);
        }
    }

    void hear(Worker& worker, const std::string& text) {
        if (!std::exchange(worker.isReady, true)) {
            if (!text.empty()) return giveUp(text);
        } else if (const auto task = std::exchange(worker.task, std::nullopt)) {
            pool_.takeAnswer(*task, text);
        }
        feed(worker);
    }

    void feed(Worker& worker) {
        const auto task = isStopped_ ? std::nullopt : pool_.nextTask();
        if (!task) return dismiss(worker);
        worker.task = tasks_++;
        worker.process.write(task->data(), static_cast<qint64>(task->size()));
    }

    void giveUp(const std::string& text) {
        if (!failure_) failure_ = text;
        stop();
    }

    /// The rest of the work goes to another one.
    void bury(Worker& worker) {
        listen(worker);
        --alive_;
        if (const auto task = std::exchange(worker.task, std::nullopt)) {
            pool_.takeAnswer(*task, std::nullopt);
            look();
            if (!isStopped_) startWorker();
        } else if (!worker.isReady && !isStopped_) {
            look();
            if (!isStopped_) giveUp(worker.process.errorString().toStdString());
        }
        if (isOver()) loop_.quit();
    }

    [[nodiscard]] bool isOver() const { return alive_ == 0; }

    const WorkerPool& pool_;
    QEventLoop loop_;
    std::vector<std::unique_ptr<Worker>> workers_;
    int alive_ = 0;
    std::size_t tasks_ = 0;
    bool isStopped_ = false;
    std::optional<std::string> failure_;
};

} // namespace

std::optional<std::string> runWorkers(const WorkerPool& pool) {
    if (QCoreApplication::instance() != nullptr) return Running(pool).run();
    int count = 1;
    std::string name = "zevlin-cards";
    char* arguments[] = {name.data(), nullptr};
    const QCoreApplication application(count, arguments);
    return Running(pool).run();
}

} // namespace toolkit

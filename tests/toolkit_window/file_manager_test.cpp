// The desktop's file manager, on a bus that these tests start, where nothing else is.
#include "toolkit/window/qt_file_manager.h"

#include <chrono>
#include <fstream>
#include <memory>

#include <QtCore/QCoreApplication>
#include <QtCore/QProcess>
#include <QtCore/QTimer>
#include <QtDBus/QDBusConnection>
#include <QtDBus/QDBusError>
#include <QtDBus/QDBusMessage>
#include <QtDBus/QDBusVirtualObject>

#include "fixture.h"
#include "support/system.h"

namespace window_test {
namespace {

const QString serviceName = QStringLiteral("org.freedesktop.FileManager1");
const QString objectPath = QStringLiteral("/org/freedesktop/FileManager1");

/// A bus as a session has it, but without the programs that a session's bus starts by itself.
class PrivateBus {
  public:
    PrivateBus() : folder_(test_system::newFolder("zevlin-bus-")) {
        std::ofstream(folder_ / "bus.conf")
            << "<busconfig><type>session</type><listen>unix:dir=" << folder_.string()
            << "</listen><policy context=\"default\"><allow send_destination=\"*\" "
               "eavesdrop=\"true\"/>"
               "<allow eavesdrop=\"true\"/><allow own=\"*\"/></policy></busconfig>";
        daemon_.start(QStringLiteral("dbus-daemon"),
                      {QStringLiteral("--nofork"), QStringLiteral("--print-address"),
                       QStringLiteral("--config-file=") +
                           QString::fromStdString((folder_ / "bus.conf").string())});
        if (daemon_.waitForReadyRead()) address_ = QString(daemon_.readLine()).trimmed();
    }
    PrivateBus(const PrivateBus&) = delete;
    PrivateBus& operator=(const PrivateBus&) = delete;
    ~PrivateBus() {
        daemon_.kill();
        daemon_.waitForFinished();
        std::filesystem::remove_all(folder_);
    }
    [[nodiscard]] QString address() const { return address_; }

  private:
    std::filesystem::path folder_;
    QProcess daemon_;
    QString address_;
};

/// Notes what it is asked to show; one that can't refuses it.
class FakeFileManager : public QDBusVirtualObject {
  public:
    FakeFileManager(const QString& address, Log& log, bool refuses)
        : bus_(QDBusConnection::connectToBus(address, serviceName)), log_(log), refuses_(refuses) {
        bus_.registerVirtualObject(objectPath, this);
        bus_.registerService(serviceName);
    }
    FakeFileManager(const FakeFileManager&) = delete;
    FakeFileManager& operator=(const FakeFileManager&) = delete;
    ~FakeFileManager() override {
        bus_.unregisterObject(objectPath);
        bus_.unregisterService(serviceName);
    }

    [[nodiscard]] QString introspect(const QString& /*path*/) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection& connection) override {
        const auto arguments = message.arguments();
        log_.push_back(message.member().toStdString() + " " + message.signature().toStdString() +
                       " " + arguments.at(0).toStringList().join(u' ').toStdString());
        return connection.send(refuses_ ? message.createErrorReply(QDBusError::NotSupported, {})
                                        : message.createReply());
    }

  private:
    QDBusConnection bus_;
    Log& log_;
    bool refuses_;
};

class FileManager : public WindowTest {
  protected:
    static void SetUpTestSuite() {
        bus_ = std::make_unique<PrivateBus>();
        test_system::setVariable("DBUS_SESSION_BUS_ADDRESS", bus_->address().toStdString());
    }
    static void TearDownTestSuite() { bus_.reset(); }
    void SetUp() override {
        ASSERT_FALSE(bus_->address().isEmpty()) << "dbus-daemon doesn't start";
        WindowTest::SetUp();
    }
    /// Selects the file and waits until as many lines are in the log.
    void select(const char* file, std::size_t lines) {
        toolkit::selectInFileManager(QUrl::fromLocalFile(QString::fromUtf8(file)),
                                     [this] { note("otherwise"); });
        QTimer patience;
        patience.setSingleShot(true);
        patience.start(std::chrono::seconds(30));
        while (log.size() < lines && patience.isActive())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    std::unique_ptr<FakeFileManager> startFileManager(bool refuses = false) {
        return std::make_unique<FakeFileManager>(bus_->address(), log, refuses);
    }

  private:
    static inline std::unique_ptr<PrivateBus> bus_;
};

TEST_F(FileManager, IsAskedToSelectTheFile) {
    const auto manager = startFileManager();
    select("/home/a b/M\xC3\xBCller/ZEV.Ini", 1);
    select("/home/kim/ZEV.Ini", 2);
    EXPECT_EQ(log, (Log{"ShowItems ass file:///home/a%20b/M%C3%BCller/ZEV.Ini",
                        "ShowItems ass file:///home/kim/ZEV.Ini"}));
}

TEST_F(FileManager, ThatIsNotThereIsReplaced) {
    select("/home/kim/ZEV.Ini", 1);
    EXPECT_EQ(log, Log{"otherwise"});
}

TEST_F(FileManager, ThatCantSelectIsReplaced) {
    const auto manager = startFileManager(true);
    select("/home/kim/ZEV.Ini", 2);
    EXPECT_EQ(log, (Log{"ShowItems ass file:///home/kim/ZEV.Ini", "otherwise"}));
}

} // namespace
} // namespace window_test

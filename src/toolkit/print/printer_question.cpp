#include "toolkit/print/printer_question.h"

#include <chrono>
#include <future>
#include <mutex>
#include <thread>
#include <utility>

#include <QtCore/QCoreApplication>

#include "toolkit/print/printers.h"
#include "toolkit/window/qt_window.h"

namespace toolkit {

struct PrinterQuestion::State {
    std::shared_future<Printer> printer;
    std::function<void()> answered;
    std::mutex posting; ///< held while the answer is posted: until then the program must not go
    bool givenUp = false;
};

PrinterQuestion::PrinterQuestion() = default;

PrinterQuestion::~PrinterQuestion() {
    if (!state_) return;
    const std::scoped_lock lock(state_->posting);
    state_->givenUp = true;
}

void PrinterQuestion::ask(const std::string& name, std::function<void()> answered) {
    if (state_) {
        state_->answered = std::move(answered);
        return;
    }
    state_ = std::make_shared<State>();
    state_->answered = std::move(answered);
    std::packaged_task<Printer()> question(printerQuestion(name));
    state_->printer = question.get_future().share();
    const auto deliver = [state = state_] {
        if (!state->givenUp && currentWindow() != nullptr)
            currentWindow()->dispatcher().run(state->answered);
    };
    std::thread([question = std::move(question), deliver, state = state_]() mutable {
        question();
        const std::scoped_lock lock(state->posting);
        if (state->givenUp) return;
        QMetaObject::invokeMethod(QCoreApplication::instance(), deliver, Qt::QueuedConnection);
    }).detach();
}

bool PrinterQuestion::isAnswered() const {
    return state_ && state_->printer.wait_for(std::chrono::seconds(0)) == std::future_status::ready;
}

Printer PrinterQuestion::answer() const { return state_->printer.get(); }

} // namespace toolkit

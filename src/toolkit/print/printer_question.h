// The default printer asked for without keeping anybody waiting.
#pragma once

#include <chrono>
#include <functional>
#include <memory>

#include "toolkit/print/printer.h"

namespace toolkit {

/// Asked in a thread of its own. Whoever gives up the question isn't kept by a print service that
/// doesn't answer.
class PrinterQuestion {
  public:
    PrinterQuestion();
    ~PrinterQuestion();
    PrinterQuestion(const PrinterQuestion&) = delete;
    PrinterQuestion& operator=(const PrinterQuestion&) = delete;

    /// Asks, unless that has been done. `answered` is an event like any other.
    void ask(std::function<void()> answered);

    [[nodiscard]] bool isAsked() const { return state_ != nullptr; }
    /// Whether the answer is there, waiting for it no longer than told.
    [[nodiscard]] bool isAnswered(std::chrono::milliseconds patience = {}) const;
    /// Waits for the answer; asks if nobody has.
    [[nodiscard]] Printer answer();

  private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace toolkit

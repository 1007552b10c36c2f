// A printer asked for without keeping anybody waiting.
#pragma once

#include <functional>
#include <memory>
#include <string>

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

    /// Asks for the printer with this name, or for the default one where there is none so called,
    /// unless that has been done. `answered` is an event like any other, and takes the place of one
    /// that was given before.
    void ask(const std::string& name, std::function<void()> answered);

    [[nodiscard]] bool isAsked() const { return state_ != nullptr; }
    [[nodiscard]] bool isAnswered() const;
    /// It must have been asked for. Waits for it where it isn't there yet.
    [[nodiscard]] Printer answer() const;

  private:
    struct State;
    std::shared_ptr<State> state_;
};

} // namespace toolkit

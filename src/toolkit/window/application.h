// The platform's application object.
#pragma once

#include <memory>
#include <string>

namespace toolkit {

/// Made first in main, gone last.
class Application {
  public:
    Application(int& argumentCount, char** arguments);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;

    /// Runs events until the program ends; returns the exit code.
    int run();
    /// Lets run() return.
    static void quit();
    /// The words behind the program's name, without the platform's own switches, joined by blanks;
    /// in UTF-8, since a path may hold any character.
    [[nodiscard]] std::string commandLine() const;

  private:
    class Implementation;
    std::unique_ptr<Implementation> implementation_;
};

} // namespace toolkit

// The command for cards without a window.
#include <ios>
#include <iostream>

#include "app/data_folder.h"
#include "cards/page_worker.h"
#include "cards/run_cards.h"
#include "toolkit/base/console.h"
#include "toolkit/base/stop_signals.h"
#include "toolkit/window/application.h"
#include "toolkit/window/shell_folders.h"

namespace {

std::filesystem::path dataFolder() {
    const auto documents = toolkit::documentsFolder();
    return documents.empty() ? documents : zev::dataFolderIn(documents);
}

int work(const zev::WorkerOrder& order, char** arguments) {
    toolkit::leaveStopToOthers();
    toolkit::passBytesUnchanged();
    int onlyItsName = 1;
    const toolkit::Application application(onlyItsName, arguments);
    return zev::workOnPages(order, std::cin, std::cout);
}

} // namespace

int main(int argumentCount, char** arguments) {
    toolkit::showUtf8OnConsole();
    std::ios::sync_with_stdio(false);
    const auto words = toolkit::commandArguments(argumentCount, arguments);
    if (const auto order = zev::readOrder(words)) return work(*order, arguments);
    return zev::runCards(words, {.in = std::cin,
                                 .out = std::cout,
                                 .err = std::cerr,
                                 .dataFolder = dataFolder,
                                 .installedFolder = toolkit::programFolder,
                                 .worker = {},
                                 .isErrShown = toolkit::isErrorOnTerminal()});
}

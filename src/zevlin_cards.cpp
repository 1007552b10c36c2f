// The command for cards without a window.
#include <ios>
#include <iostream>

#include "app/data_folder.h"
#include "cards/run_cards.h"
#include "toolkit/base/console.h"
#include "toolkit/window/shell_folders.h"

namespace {

std::filesystem::path dataFolder() {
    const auto documents = toolkit::documentsFolder();
    return documents.empty() ? documents : zev::dataFolderIn(documents);
}

} // namespace

int main(int argumentCount, char** arguments) {
    toolkit::showUtf8OnConsole();
    std::ios::sync_with_stdio(false);
    return zev::runCards(toolkit::commandArguments(argumentCount, arguments),
                         {std::cin, std::cout, std::cerr, dataFolder});
}

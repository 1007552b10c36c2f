// A PDF file as the library writes it, small enough to be seen through.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace toolkit::test {

/// As the library writes it: the objects of these numbers in this order, of which the first is
/// about the file and the second its catalog.
inline std::string fileOf(const std::vector<std::pair<int, std::string>>& objects) {
    std::string file = "%PDF-1.4\n";
    std::vector<std::size_t> places(objects.size() + 1);
    for (const auto& [number, text] : objects) {
        places.at(static_cast<std::size_t>(number)) = file.size();
        file += std::to_string(number) + " 0 obj\n" + text + "endobj\n";
    }
    const std::size_t table = file.size();
    file += "xref\n0 " + std::to_string(places.size()) + "\n0000000000 65535 f \n";
    for (std::size_t number = 1; number < places.size(); ++number) {
        const std::string digits = std::to_string(places[number]);
        file += std::string(10 - digits.size(), '0') + digits + " 00000 n \n";
    }
    return file + "trailer\n<<\n/Size " + std::to_string(places.size()) +
           "\n/Info 1 0 R\n/Root 2 0 R\n>>\nstartxref\n" + std::to_string(table) + "\n%%EOF\n";
}

inline const std::string about = "<<\n/Title ()\n>>\n";
inline const std::string catalog = "<<\n/Type /Catalog\n/Pages 3 0 R\n>>\n";
inline const std::string tree = "<<\n/Type /Pages\n/Kids\n[\n4 0 R\n]\n/Count 1\n>>\n";
inline const std::string page =
    "<<\n/Type /Page\n/Parent 3 0 R\n/Contents 6 0 R\n/Resources 5 0 R\n"
    "/MediaBox [0 0 60.000000 80.500000]\n>>\n";
inline const std::string resources = "<<\n/Font <<\n/F7 7 0 R\n>>\n>>\n";
// The bytes of a stream may look like anything.
inline const std::string drawing = "<<\n/Length 9\n>>\nstream\n9 0 R 7 0 obj endobj\nendstream\n";
inline const std::string letters = "<<\n/FontName /QHAAAA+Letters\n>>\n";

inline std::string usualFile() {
    return fileOf({{1, about},
                   {2, catalog},
                   {4, page},
                   {5, resources},
                   {6, drawing},
                   {7, letters},
                   {3, tree}});
}

} // namespace toolkit::test

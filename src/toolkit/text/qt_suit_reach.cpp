#include "toolkit/text/qt_suit_reach.h"

#include <cmath>
#include <map>
#include <string>
#include <string_view>

#include <QtCore/QByteArray>
#include <QtCore/QtEndian>
#include <QtGui/QFontDatabase>

#include "toolkit/picture/embedded_file.h"
#include "toolkit/text/qt_font_family.h"

namespace toolkit {
namespace {

constexpr std::string_view ownFamily = "Zevlin Suits";
constexpr int tenthsOfAnEm = 10;
constexpr double mostEms = 4;

/// As long as the own name, whose place it takes in the font's file: "Zevlin S0006".
std::string nameFor(int tenths) {
    const std::string number = std::to_string(tenths);
    std::string name(ownFamily.substr(0, ownFamily.find("uits")));
    return name.append(ownFamily.size() - name.size() - number.size(), '0') + number;
}

/// Where a table of the font's file begins; 0 if there is none.
qsizetype tableAt(const QByteArray& file, const char* tag) {
    constexpr qsizetype firstEntry = 12;
    constexpr qsizetype entryLength = 16;
    constexpr qsizetype offsetInEntry = 8;
    const auto count = qFromBigEndian<quint16>(file.constData() + 4);
    for (qsizetype i = 0; i < count; ++i) {
        const char* entry = file.constData() + firstEntry + i * entryLength;
        if (std::string_view(entry, 4) == tag)
            return qFromBigEndian<quint32>(entry + offsetInEntry);
    }
    return 0;
}

quint16 numberAt(const QByteArray& file, const char* tag, qsizetype place) {
    return qFromBigEndian<quint16>(file.constData() + tableAt(file, tag) + place);
}

void setAdvances(QByteArray& file, int tenths) {
    constexpr qsizetype unitsPerEm = 18;
    constexpr qsizetype metricsCount = 34;
    constexpr qsizetype metricLength = 4;
    const int units = tenths * numberAt(file, "head", unitsPerEm) / tenthsOfAnEm;
    char* metric = file.data() + tableAt(file, "hmtx");
    for (int i = 0; i < numberAt(file, "hhea", metricsCount); ++i, metric += metricLength)
        qToBigEndian(static_cast<quint16>(units), metric);
}

QByteArray sixteenBits(std::string_view text) {
    QByteArray wide;
    for (const char character : text) wide.append('\0').append(character);
    return wide;
}

/// True if the font system has taken it.
bool registerFont(const std::string& name, int tenths) {
    const auto data = embeddedFile("/fonts/zevlin-suits.ttf");
    QByteArray file(reinterpret_cast<const char*>(data.data()),
                    static_cast<qsizetype>(data.size()));
    setAdvances(file, tenths);
    file.replace(sixteenBits(ownFamily), sixteenBits(name));
    file.replace(QByteArray(ownFamily.data(), ownFamily.size()), QByteArray::fromStdString(name));
    QFontDatabase::addApplicationFontFromData(file);
    return fontFamily(name).nameGiven == name;
}

bool isAvailable(const std::string& name, int tenths) {
    static std::map<int, bool> known;
    const auto [entry, isNew] = known.try_emplace(tenths, false);
    if (isNew) entry->second = registerFont(name, tenths);
    return entry->second;
}

} // namespace

FontSpec suitsReaching(const FontSpec& font, float twips) {
    if (fontFamily(font.Name).family != QLatin1String(ownFamily.data(), ownFamily.size()))
        return font;
    const double ems = static_cast<double>(twips) / (font.Size * twipsPerPoint);
    if (ems <= 0 || ems >= mostEms || std::isnan(ems)) return font;
    // Readers mind a gap, however small, but no small overlap; and each width is one more font that
    // the page takes along.
    const int tenths = static_cast<int>(ems * tenthsOfAnEm) + 1;
    FontSpec reaching = font;
    reaching.Name = nameFor(tenths);
    return isAvailable(reaching.Name, tenths) ? reaching : font;
}

} // namespace toolkit

#include "toolkit/window/qt_program_icon.h"

#include <string>

#include <QtGui/QPixmap>

#include "toolkit/picture/embedded_file.h"

namespace toolkit {

QIcon programIcon() {
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128}) {
        const std::string name = "icons/zevlin-" + std::to_string(size) + ".png";
        const auto file = embeddedFile(name.c_str());
        QPixmap picture;
        picture.loadFromData(reinterpret_cast<const uchar*>(file.data()),
                             static_cast<unsigned>(file.size()));
        icon.addPixmap(picture);
    }
    return icon;
}

} // namespace toolkit

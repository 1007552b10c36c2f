#include "toolkit/window/input/qt_file_drop.h"

#include <system_error>

#include <QtCore/QMimeData>
#include <QtCore/QUrl>
#include <QtGui/QDropEvent>

#include "toolkit/base/file_address.h"

namespace toolkit {

std::optional<std::filesystem::path> draggedFile(const QMimeData& dragged) {
    for (const QUrl& address : dragged.urls()) {
        // As it was encoded: a name may be any bytes.
        const QByteArray text = address.toEncoded();
        auto file = fileOfAddress({text.constData(), static_cast<std::size_t>(text.size())});
        std::error_code ignored;
        if (file && std::filesystem::is_regular_file(*file, ignored)) return file;
    }
    return std::nullopt;
}

void answerDrag(QDropEvent& drag, bool takes) {
    if (!takes || !drag.possibleActions().testFlag(Qt::CopyAction)) return drag.ignore();
    drag.setDropAction(Qt::CopyAction);
    drag.accept();
}

} // namespace toolkit

#include "toolkit/print/pdf_writing.h"

#include <QtCore/QBuffer>
#include <QtGui/QPageLayout>
#include <QtGui/QPageSize>
#include <QtGui/QPainter>
#include <QtGui/QPdfWriter>

#include "toolkit/base/error.h"
#include "toolkit/base/qt_text.h"

namespace toolkit {

struct PdfWriting::Parts {
    QBuffer buffer;
    QPdfWriter writer{&buffer};
    QPainter painter;

    void begin() {
        if (!painter.isActive() && !painter.begin(&writer))
            throw RunTimeError(Failure::PrinterError);
    }
};

PdfWriting::PdfWriting(int dotsPerInch) : parts_(std::make_unique<Parts>()) {
    parts_->buffer.open(QIODevice::WriteOnly);
    parts_->writer.setResolution(dotsPerInch);
}

PdfWriting::~PdfWriting() = default;

void PdfWriting::describe(const std::string& title) {
    parts_->writer.setTitle(qString(title));
    parts_->writer.setCreator(QStringLiteral("Zevlin"));
}

QPainter& PdfWriting::newPage(double width, double height) {
    const QPageSize size(QSizeF(width, height), QPageSize::Point, QString(), QPageSize::ExactMatch);
    parts_->writer.setPageLayout({size, QPageLayout::Portrait, QMarginsF()});
    if (parts_->painter.isActive())
        parts_->writer.newPage();
    else
        parts_->begin();
    return parts_->painter;
}

std::string PdfWriting::finish() {
    parts_->begin();
    if (!parts_->painter.end()) throw RunTimeError(Failure::PrinterError);
    return parts_->buffer.data().toStdString();
}

} // namespace toolkit

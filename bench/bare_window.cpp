// The least that a Qt program can do: decode the card's picture, scale it and show it.
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace {

class Picture : public QWidget {
  public:
    explicit Picture(QImage image) : image_(std::move(image)) {
        resize(image_.size());
        setAttribute(Qt::WA_OpaquePaintEvent);
    }

  protected:
    void paintEvent(QPaintEvent* /*event*/) override { QPainter(this).drawImage(0, 0, image_); }

  private:
    QImage image_;
};

} // namespace

int main(int argumentCount, char** arguments) {
    const QApplication application(argumentCount, arguments);
    const int width = QString::fromLocal8Bit(arguments[2]).toInt();
    const QImage card = QImage(QString::fromLocal8Bit(arguments[1]))
                            .convertToFormat(QImage::Format_RGB32)
                            .scaledToWidth(width, Qt::SmoothTransformation);
    Picture picture(card);
    picture.move(0, 0);
    picture.show();
    return QApplication::exec();
}

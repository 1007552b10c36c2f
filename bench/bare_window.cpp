// The least that a Qt program can do: decode the card's picture, scale it and show it.
//
//   bare_window PICTURE WIDTH          that many pixels wide
//   bare_window PICTURE STEP ladder    at a step of the program's ladder; plus and minus go on
//                                      along it
#include <algorithm>
#include <array>

#include <QtGui/QImage>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace {

class Picture : public QWidget {
  public:
    explicit Picture(const QString& file)
        : full_(QImage(file).convertToFormat(QImage::Format_RGB32)) {
        setAttribute(Qt::WA_OpaquePaintEvent);
    }
    void showWide(int width) {
        image_ = full_.scaledToWidth(width, Qt::SmoothTransformation);
        // A window that fills the screen keeps its size.
        if (!isMaximized() && !isFullScreen()) resize(image_.size());
        update();
    }
    void showStep(int step) {
        step_ = step;
        showWide(qRound(full_.width() * ladder.at(static_cast<std::size_t>(step))));
    }

  protected:
    void paintEvent(QPaintEvent* event) override {
        QPainter painter(this);
        for (const QRect& rest : event->region() - image_.rect())
            painter.fillRect(rest, Qt::darkGreen);
        painter.drawImage(0, 0, image_);
    }
    void keyPressEvent(QKeyEvent* event) override {
        const int last = static_cast<int>(ladder.size()) - 1;
        if (step_ == 0) return;
        if (event->key() == Qt::Key_Plus && step_ < last) showStep(step_ + 1);
        if (event->key() == Qt::Key_Minus && step_ > 1) showStep(step_ - 1);
    }

  private:
    static constexpr std::array<double, 12> ladder{0,   0.2,     0.25, 1.0 / 3, 0.425, 0.5,
                                                   0.6, 2.0 / 3, 0.75, 0.8,     0.9,   1.0};
    QImage full_;
    QImage image_;
    int step_ = 0; ///< 0 off the ladder
};

} // namespace

int main(int argumentCount, char** arguments) {
    const QApplication application(argumentCount, arguments);
    Picture picture(QString::fromLocal8Bit(arguments[1]));
    const int size = QString::fromLocal8Bit(arguments[2]).toInt();
    argumentCount > 3 ? picture.showStep(size) : picture.showWide(size);
    picture.setWindowTitle(QStringLiteral("Bare window"));
    picture.move(0, 0);
    picture.show();
    return QApplication::exec();
}

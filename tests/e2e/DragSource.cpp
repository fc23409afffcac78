// A second X client for the end-to-end test: a window that starts a real drag of its text
// (XDND under X11) when the mouse is pressed on it and moved.
//   velmora_drag_source TEXT X Y

#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>

namespace {
class DragLabel : public QLabel {
public:
    explicit DragLabel(const QString& text) : QLabel(text) {}

protected:
    void mousePressEvent(QMouseEvent* event) override { pressed_ = event->button() == Qt::LeftButton; }
    void mouseMoveEvent(QMouseEvent*) override {
        if (!pressed_) return;
        pressed_ = false;
        auto* drag = new QDrag(this);
        auto* data = new QMimeData;
        data->setText(text());
        drag->setMimeData(data);
        drag->exec(Qt::CopyAction);
    }

private:
    bool pressed_ = false;
};
}  // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 4) return 2;
    DragLabel label(QString::fromUtf8(argv[1]));
    label.setWindowTitle(QStringLiteral("drag source"));
    label.setGeometry(QString::fromLatin1(argv[2]).toInt(), QString::fromLatin1(argv[3]).toInt(), 200, 100);
    label.show();
    return QApplication::exec();
}

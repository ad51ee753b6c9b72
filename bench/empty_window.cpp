#include <QApplication>
#include <QPalette>
#include <QWidget>

/// `empty_window`: a window of the size of the program's and of one colour, which does nothing:
/// what the toolkit costs by itself. Its colour, 123456, is what scripts/beside waits for.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(0x12, 0x34, 0x56));
    QApplication::setPalette(palette);
    QWidget window;
    window.resize(1280, 820);
    window.show();
    return QApplication::exec();
}

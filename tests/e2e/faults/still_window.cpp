#include <QApplication>
#include <QWidget>

/// A window that does nothing: what its answers take is the machine's own noise.
int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("still"));
    QWidget window;
    window.setWindowTitle(QStringLiteral("Still"));
    window.resize(40, 40);
    window.show();
    return QApplication::exec();
}

// The least program with a window: what starting the program is measured against.
#include <QApplication>
#include <QWidget>

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle("Bare");
    window.resize(560, 430);
    window.show();
    return QApplication::exec();
}

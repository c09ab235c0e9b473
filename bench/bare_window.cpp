// A plain Qt program that shows the program's splash picture, and then a window with the same menu and controls: what
// starting the program is measured against.
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QSplashScreen>

namespace {

void addMenu(QMainWindow& window, const char* title, std::initializer_list<const char*> items) {
    QMenu* const menu = window.menuBar()->addMenu(title);
    for (const char* const item : items) {
        menu->addAction(item);
    }
}

}  // namespace

int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QSplashScreen splash{QPixmap(SPLASH_PICTURE)};
    splash.move(150, 100);
    splash.show();
    splash.showMessage("Loading");

    QMainWindow window;
    window.setWindowTitle("Bare");
    window.resize(560, 430);
    addMenu(window, "&File", {"&Save", "Sa&ve and Exit", "E&xit Without Saving"});
    addMenu(window, "&Help", {"&About ...", "&Credits", "Online Help", "Frequently Asked Questions", "Donate"});
    int top = 40;
    for (const char* const text : {"Pick a Neighborhood:", "Pick a Family:", "Pick a Sim:"}) {
        (new QLabel(text, &window))->move(10, top);
        auto* const box = new QComboBox(&window);
        box->addItems({"Neighborhood 1", "Neighborhood 2", "Neighborhood 3"});
        box->setGeometry(160, top, 300, 28);
        top += 30;
    }
    int left = 10;
    for (const char* const text : {"Child to Teen", "Teen to Adult", "Move Out"}) {
        (new QPushButton(text, &window))->setGeometry(left, 280, 100, 30);
        left += 110;
    }
    window.show();
    splash.finish(&window);
    return QApplication::exec();
}

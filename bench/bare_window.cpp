#include <QApplication>
#include <QWidget>

/// The least that a program with a window is: what starting one costs by itself.
int main(int argc, char** argv) {
    const QApplication application(argc, argv);
    QWidget window;
    window.resize(1000, 680);
    window.show();
    return QApplication::exec();
}

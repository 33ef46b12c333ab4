// A window of the bare toolkit with nothing in it, as large as it is told: what any program of this kind pays
// before it has done anything. The program's own start is measured beside it.
#include <QApplication>
#include <QWidget>

#include <cstdlib>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QWidget window;
    window.setWindowTitle(QStringLiteral("empty window"));
    if (argc > 2) window.resize(std::atoi(argv[1]), std::atoi(argv[2]));
    window.show();
    return QApplication::exec();
}

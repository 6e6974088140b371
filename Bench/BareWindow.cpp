#include <QApplication>
#include <QGridLayout>
#include <QLabel>
#include <cstdlib>

/// A window of the toolkit with so many labels in it, and nothing else: what the program is measured against.
/// usage: bare-window [CHILDREN]
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const int children = argc > 1 ? std::atoi(argv[1]) : 1;
    constexpr int columns = 16;
    QWidget window;
    QGridLayout layout(&window);
    for (int i = 0; i < children; ++i) {
        layout.addWidget(new QLabel("ZARN"), i / columns, i % columns);
    }
    window.setFixedSize(800, 480);
    window.show();
    return QApplication::exec();
}

#include <QApplication>
#include <QLabel>

/// A window of the toolkit and nothing else: what the running program is measured against.
int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    QLabel label("ZARN");
    label.setFixedSize(800, 480);
    label.show();
    return QApplication::exec();
}

#include "Dialogs/Look.h"

#include <QApplication>
#include <QFile>
#include <QPalette>

void DressApplication()
{
    if (!qApp->styleSheet().isEmpty()) {
        return;
    }
    // A colour that a style sheet gives to every widget makes a rule for each of them; a palette is there for all at once.
    QPalette palette = QApplication::palette();
    for (QPalette::ColorGroup group : {QPalette::Active, QPalette::Inactive}) {
        for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
            palette.setColor(group, role, QColor(28, 40, 51));
        }
    }
    QApplication::setPalette(palette);
    QFile style(QStringLiteral(":/Style/zarn.qss"));
    if (style.open(QIODevice::ReadOnly)) {
        qApp->setStyleSheet(QString::fromUtf8(style.readAll()));
    }
}

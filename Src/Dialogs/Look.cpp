#include "Dialogs/Look.h"

#include <QApplication>
#include <QFile>
#include <QPalette>

void DressApplication()
{
    if (!qApp->styleSheet().isEmpty()) {
        return;
    }
    // What holds for every widget stands here: as a rule of the style sheet it would be looked up for each of them.
    QPalette palette = QApplication::palette();
    const std::pair<QPalette::ColorRole, QColor> colours[] = {
        {QPalette::Window, QColor(233, 237, 241)}, {QPalette::Highlight, QColor(41, 98, 160)}, {QPalette::HighlightedText, Qt::white}};
    for (const auto& [role, colour] : colours) {
        palette.setColor(role, colour);
    }
    for (QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(role, QColor(28, 40, 51));
        palette.setColor(QPalette::Disabled, role, QColor(150, 158, 166));
    }
    QApplication::setPalette(palette);
    QFile style(QStringLiteral(":/Style/zarn.qss"));
    if (style.open(QIODevice::ReadOnly)) {
        qApp->setStyleSheet(QString::fromUtf8(style.readAll()));
    }
}

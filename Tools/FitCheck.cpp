#include "FitCheck.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QGlyphRun>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOptionButton>
#include <QTextDocument>
#include <QTextLayout>
#include <QWidget>

namespace {

QString Describe(const QWidget& widget, const QString& text)
{
    return QStringLiteral("%1 \"%2\"").arg(widget.objectName(), text.left(40));
}

bool Holds(const QSize& place, const QSize& needed)
{
    return needed.width() <= place.width() && needed.height() <= place.height();
}

bool IsTextCut(const QLabel& label)
{
    const QSize needed = label.wordWrap() ? QSize(label.minimumSizeHint().width(), label.heightForWidth(label.width()))
                                          : label.sizeHint();
    return !Holds(label.size(), needed);
}

QRect PlaceOfText(const QAbstractButton& button)
{
    if (!qobject_cast<const QPushButton*>(&button)) {
        return button.contentsRect();
    }
    QStyleOptionButton option;
    option.initFrom(&button);
    return button.style()->subElementRect(QStyle::SE_PushButtonContents, &option, &button);
}

bool IsTextCut(const QAbstractButton& button)
{
    QSize needed = button.fontMetrics().size(Qt::TextShowMnemonic, button.text());
    if (!button.icon().isNull()) {
        // Room of 4 pixels between picture and text, as the style leaves.
        needed.rwidth() += button.iconSize().width() + (button.text().isEmpty() ? 0 : 4);
        needed.setHeight(qMax(needed.height(), button.iconSize().height()));
    }
    return !Holds(PlaceOfText(button).size(), needed);
}

bool IsTextCut(const QAbstractSpinBox& box)
{
    const QLineEdit* line = box.findChild<const QLineEdit*>();
    // The line leaves 2 pixels on each side of its text.
    return !line || line->width() - 4 < line->fontMetrics().horizontalAdvance(line->text());
}

QString TextOf(const QWidget& widget)
{
    const QString text = widget.property("text").toString();
    if (!qobject_cast<const QLabel*>(&widget) || !Qt::mightBeRichText(text)) {
        return text;
    }
    QTextDocument page;
    page.setHtml(text);
    return page.toPlainText();
}

/// No glyph of the fonts stands for some character, so that a box or nothing is drawn.
bool IsUncovered(const QString& text, const QFont& font)
{
    QTextLayout layout(text, font);
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    for (const QGlyphRun& run : layout.glyphRuns()) {
        if (run.glyphIndexes().contains(0)) {
            return true;
        }
    }
    return false;
}

/// What a scroll area hides can be brought into view.
bool IsInScrollArea(const QWidget& widget)
{
    for (const QWidget* parent = widget.parentWidget(); parent; parent = parent->parentWidget()) {
        if (qobject_cast<const QAbstractScrollArea*>(parent)) {
            return true;
        }
    }
    return false;
}

bool IsCutOff(const QWidget& widget)
{
    if (IsInScrollArea(widget)) {
        return false;
    }
    const QWidget* window = widget.window();
    const QRect place(widget.mapTo(window, QPoint()), widget.size());
    QRect seen = place & window->rect();
    for (const QWidget* parent = widget.parentWidget(); parent != window; parent = parent->parentWidget()) {
        seen &= QRect(parent->mapTo(window, QPoint()), parent->size());
    }
    return seen != place;
}

template <class Widget>
void CheckText(const QWidget& window, QStringList& faults)
{
    for (const Widget* widget : window.findChildren<Widget*>()) {
        // The corner and clear buttons that toolkit widgets bring along have no name of ours.
        if (!widget->isVisible() || widget->objectName().isEmpty() || widget->objectName().startsWith(QLatin1String("qt_"))) {
            continue;
        }
        const QString name = Describe(*widget, widget->property("text").toString());
        if (IsTextCut(*widget)) {
            faults.append(name + QStringLiteral(": text larger than its place of %1 x %2").arg(widget->width()).arg(widget->height()));
        }
        if (IsCutOff(*widget)) {
            faults.append(name + QStringLiteral(": cut off by what it stands in"));
        }
    }
}

}

namespace FitCheck {

QStringList Faults(const QWidget& window, bool mayScroll)
{
    QStringList faults;
    const QRect screen = window.screen()->geometry();
    if (!screen.contains(window.frameGeometry())) {
        faults.append(QStringLiteral("%1: beyond the screen").arg(window.objectName()));
    }
    CheckText<QLabel>(window, faults);
    CheckText<QAbstractButton>(window, faults);
    CheckText<QAbstractSpinBox>(window, faults);
    if (!mayScroll) {
        for (const QScrollArea* area : window.findChildren<QScrollArea*>()) {
            if (area->isVisible() && (area->verticalScrollBar()->maximum() > 0 || area->horizontalScrollBar()->maximum() > 0)) {
                faults.append(QStringLiteral("%1: text scrolls").arg(area->objectName()));
            }
        }
    }
    return faults;
}

QStringList UncoveredTexts(const QWidget& window)
{
    QStringList faults;
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        const QString text = TextOf(*widget);
        if (widget->isVisible() && IsUncovered(text, widget->font())) {
            faults.append(Describe(*widget, text) + QStringLiteral(": characters that no font has"));
        }
    }
    return faults;
}

}

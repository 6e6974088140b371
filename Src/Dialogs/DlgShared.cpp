#include "Dialogs/DlgShared.h"

#include "Globals.h"

#include <QDialog>
#include <QFontMetrics>
#include <QLabel>
#include <QLayout>
#include <QScreen>
#include <QScrollArea>
#include <QTextDocument>

namespace {

/// The two spacers around the text, in pixels each.
constexpr int spacerHeight = 16;

void Resize(QDialog& dialog, int width, int height)
{
    const QRect screen = dialog.screen()->geometry();
    dialog.resize(qMin(width, screen.width()), qMin(height, screen.height()));
}

/// Rich text may need more room than its characters, for bold words and the gaps between paragraphs. What is
/// too long to be shown whole leaves the spacers alone.
void GiveRoom(QDialog& dialog, QScrollArea& area, const QLabel& body)
{
    dialog.layout()->activate();
    const int needed = body.heightForWidth(area.width());
    if (needed > area.height() && needed <= area.height() + 2 * spacerHeight) {
        area.setMinimumHeight(needed);
    }
}

}

namespace DlgShared {

QWidget* Parent()
{
    return qobject_cast<QWidget*>(WndMainObject());
}

QString AsWritten(const QString& text)
{
    // A label looks for tags in the first line alone, and takes escaped ones there for rich text as well.
    return Qt::mightBeRichText(text) ? text.toHtmlEscaped().replace('\n', QLatin1String("<br>")) : text;
}

void Center(QDialog& dialog)
{
    dialog.move(dialog.screen()->geometry().center() - dialog.rect().center());
}

void FitHeight(QDialog& dialog, QScrollArea& area, QLabel& body, const QString& text)
{
    QString written = text;
    written.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    written.replace(QLatin1String("<p>"), QLatin1String("\n\n"));
    written.replace(QLatin1String("<br>"), QLatin1String("\n"));
    body.ensurePolished();
    const QRect needed = body.fontMetrics().boundingRect(QRect(0, 0, 370, 600),
                                                         Qt::TextWordWrap | Qt::AlignHCenter | Qt::AlignVCenter, written);
    // The body fills its area in the form.
    dialog.layout()->activate();
    Resize(dialog, dialog.width(), dialog.height() - area.height() + needed.height());
    GiveRoom(dialog, area, body);
}

void FitSize(QDialog& dialog, QScrollArea& area, QLabel& body, const QString& text, int extraHeight)
{
    QString written = text;
    written.replace(QLatin1String("\r\n"), QLatin1String("\n"));
    written.replace(QLatin1String("<p>"), QLatin1String("\n"));
    const int lines = static_cast<int>(written.count('\n'));
    body.ensurePolished();
    const QFontMetrics metrics = body.fontMetrics();
    const QRect needed = metrics.boundingRect(QRect(0, 0, 450, 250),
                                              Qt::TextWordWrap | Qt::TextShowMnemonic | Qt::AlignJustify, text);
    QString shown = text;
    shown.replace('\n', QLatin1String("<p>"));
    body.setText(shown);
    Resize(dialog, needed.width() + 30, needed.height() + extraHeight + (lines + 1) * metrics.height() / 3);
    GiveRoom(dialog, area, body);
}

}

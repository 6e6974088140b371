#include "Dialogs/DlgShared.h"

#include "Config.h"
#include "Globals.h"
#include "PrintIt.h"
#include "Settings.h"

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

/// Lets long words break anywhere, such as names that were typed without a blank.
QString Breakable(const QString& text)
{
    constexpr int longWord = 20;
    constexpr QChar breakHere(0x200B);
    const bool rich = Qt::mightBeRichText(text);
    QString broken;
    int letters = 0;
    // What ends the tag or entity that the text is in.
    QChar end;
    for (const QChar c : text) {
        broken.append(c);
        if (!end.isNull()) {
            end = c == end ? QChar() : end;
        } else if (rich && (c == '<' || c == '&')) {
            end = c == '<' ? '>' : ';';
        } else {
            letters = c.isSpace() ? 0 : letters + 1;
        }
        if (letters >= longWord && end.isNull()) {
            broken.append(breakHere);
        }
    }
    return broken;
}

/// The text as shown may need more room than its characters: for bold words, the gaps between paragraphs, words
/// longer than a line.
void GiveRoom(QDialog& dialog, QScrollArea& area, QLabel& body)
{
    dialog.layout()->activate();
    if (body.minimumSizeHint().width() > area.width()) {
        body.setText(Breakable(body.text()));
    }
    const int lacking = body.heightForWidth(area.width()) - area.height();
    if (lacking > 2 * spacerHeight) {
        Resize(dialog, dialog.width(), dialog.height() + lacking);
    } else if (lacking > 0) {
        area.setMinimumHeight(area.height() + lacking);
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
    // A label looks for a tag or "&lt;" in the first line alone; once escaped the text may hold neither there.
    return Qt::mightBeRichText(text)
        ? QLatin1String("<qt>") + text.toHtmlEscaped().replace('\n', QLatin1String("<br>")) + QLatin1String("</qt>")
        : text;
}

QString WithPumpBackLimit(const QString& text)
{
    const RR::SInt32 limit = RR::Round(CFG::MeaPumpBackLimit[settings.unitPressure], RR::ROUND);
    return text.arg(PrintNum(limit), PrintPressureUnit(settings.unitPressure));
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

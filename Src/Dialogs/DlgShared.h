#pragma once

class QDialog;
class QLabel;
class QScrollArea;
class QString;
class QWidget;

/// What all dialogs have in common.
namespace DlgShared {

/// The main window, above which every dialog stands; null when there is none.
QWidget* Parent();

/// `text` in a form that the message dialogs show as it is written, also where it looks like rich text. For texts
/// with parts that come from a file or a finger.
QString AsWritten(const QString& text);

/// `text` with the absolute pressure up to which the storage compartment is pumped empty, and its unit, in place
/// of %1 and %2.
QString WithPumpBackLimit(const QString& text);

/// Moves the dialog to the middle of its screen, by its present size.
void Center(QDialog& dialog);

// Both fit a dialog to its text, which is measured as it is written, tags and all. `area` shows `body`. Where the
// text as shown needs more room than was measured, it is taken from the spacers around the area, or else the dialog
// grows; at the height of the screen the text scrolls.

/// Fits the height alone. To be called with the dialog in the size of its form.
void FitHeight(QDialog& dialog, QScrollArea& area, QLabel& body, const QString& text);
/// Fits both: `extraHeight` are the pixels that the dialog needs beside one block of text; each further line of
/// the text adds a third of the font's height. Gives `body` the text, with its line breaks as paragraphs.
void FitSize(QDialog& dialog, QScrollArea& area, QLabel& body, const QString& text, int extraHeight);

}

#pragma once

#include <QStringList>

class QWidget;

/// Finds what a screen fails to show whole.
namespace FitCheck {

/// One line for each fault of a window on the screen: a label, button or spin box whose text or picture is larger than its
/// place, a widget cut off by what it stands in, a text that scrolls though it shouldn't have to, a window
/// beyond the screen. Contents of item views aren't looked at.
QStringList Faults(const QWidget& window, bool mayScroll);

/// One line for each label, button or line with a character that no font on the machine has.
QStringList UncoveredTexts(const QWidget& window);

}

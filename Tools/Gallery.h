#pragma once

#include <QString>
#include <functional>
#include <vector>

/// Shows every dialog with typical and with extreme content, takes its picture, and looks for cut-off texts.
namespace Gallery {

enum Content {
    TYPICAL,
    /// More than the program ever shows: a text may scroll.
    EXTREME
};

/// A dialog in one state.
struct Exhibit {
    /// Name of its picture file.
    const char* name;
    Content content;
    /// Opens the dialog and returns when it has closed.
    std::function<void()> show;
    /// What a user does before the picture is taken, by the robot on its own thread. False if that failed.
    std::function<bool()> prepare = nullptr;
    /// What a user does behind it, where closing what is open would mean more than that.
    std::function<void()> leave = nullptr;
};

/// The messages, and what texts are typed into; a new dialog is one more line there, or in the list below.
std::vector<Exhibit> Exhibits();
/// What frames a measurement and the other gas processes, with a scripted sensor unit.
std::vector<Exhibit> ProcessExhibits();
/// The main window, on the same unit.
std::vector<Exhibit> WindowExhibits();

/// The text in the language that is selected, as a caller of a dialog would hand it in.
QString Said(const char* german, const char* english);

}

#pragma once

#include <QString>
#include <QStringList>
#include <atomic>
#include <functional>
#include <memory>
#include <thread>

/// Operates the running program as a finger would: by widgets on the screen, found by object name.
/// A scenario runs on a thread of its own, so that it can follow into modal dialogs; each function below does its
/// work on the event loop's thread. Where a modal dialog is open, only its widgets and those of a pop-up can be found.
namespace Robot {

/// How long what a touch leads to may take. Where the clock is sped up, all limits here are ten times as long.
constexpr int patienceMs = 20000;

/// Runs `scenario` once the event loop of the application runs. Made before `main`, as a static object.
/// A result other than 0 becomes the exit status of the program. When the scenario ends, so does the program.
struct Scenario {
    explicit Scenario(std::function<int()> scenario);
};

/// Runs `action` on the event loop's thread and waits for its end. It must not open a modal dialog.
/// On that thread itself it is run at once.
void OnGui(const std::function<void()>& action);

/// Something that was started on the event loop's thread and may run a modal dialog.
class Running {
public:
    bool HasEnded() const { return ended && *ended; }
    /// False if it hasn't ended within `limitMs`.
    bool WaitForEnd(int limitMs = patienceMs) const;

private:
    friend Running Start(const std::function<void()>& action);
    std::shared_ptr<std::atomic<bool>> ended;
};
Running Start(const std::function<void()>& action);

/// For a program that hasn't given its event loop to a scenario: runs `steps` on a thread of their own while the caller,
/// on the event loop's thread, goes on into a modal dialog. Its end waits for the end of the steps.
class Meanwhile {
public:
    explicit Meanwhile(std::function<void()> steps);
    ~Meanwhile();
    Meanwhile(const Meanwhile&) = delete;
    Meanwhile& operator=(const Meanwhile&) = delete;

private:
    std::atomic<bool> ended = false;
    std::thread thread;
};

/// Does `action` once, on the event loop's thread, as soon as `condition` holds there; for what lasts too short to be
/// seen from another thread. Returns at once.
void When(const std::function<bool()>& condition, const std::function<void()>& action);

/// Waits until `condition`, asked on the event loop's thread, holds; false if it doesn't within `limitMs`.
bool WaitFor(const std::function<bool()>& condition, int limitMs = patienceMs);

/// A widget of that name is on the screen and not behind a modal dialog.
bool IsShown(const char* objectName);
bool WaitForShown(const char* objectName, int limitMs = patienceMs);
bool WaitForGone(const char* objectName, int limitMs = patienceMs);
bool IsEnabled(const char* objectName);

/// Waits until the widget is shown and enabled and nothing covers its middle, and touches that. False if it doesn't
/// come so far within `limitMs`.
bool Click(const char* objectName, int limitMs = patienceMs);
/// Touches the row of that text in a list.
bool ClickRow(const char* listName, const QString& text);
/// Presses the keys of the on-screen keyboard whose captions make up `text`.
bool TypeOnScreen(const QString& text);

/// The text that a label, button or line shows, empty if it isn't shown.
QString TextOf(const char* objectName);

/// Every text that labels of that name have painted so far, for most of what a label tells stays for a moment only.
/// Kept while a scenario is planned.
QStringList TextsShownBy(const char* labelName);
/// Waits until a label of that name has painted `text`, now or before.
bool WasShown(const char* labelName, const QString& text, int limitMs = patienceMs);

/// The texts in the first column of a list or table, also of one that isn't on the screen.
QStringList RowsOf(const char* listName);

/// Writes what the topmost window shows to a PNG file.
bool TakePicture(const QString& file);

}

#include "Robot.h"

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QListView>
#include <QMap>
#include <QPixmap>
#include <QTest>
#include <QThread>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <atomic>
#include <cstdio>
#include <thread>
#include <unistd.h>

namespace {

constexpr useconds_t pollUs = 20000;

std::function<int()>& PlannedScenario()
{
    static std::function<int()> planned;
    return planned;
}

std::thread scenarioThread;
std::atomic<int> exitStatus = 0;
std::atomic<bool> scenarioEnded = false;

/// Sees all that is painted.
class Watcher : public QObject {
public:
    QMap<QString, QStringList> shown;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (const QLabel* label = event->type() == QEvent::Paint ? qobject_cast<QLabel*>(watched) : nullptr) {
            QStringList& texts = shown[label->objectName()];
            if (texts.isEmpty() || texts.last() != label->text()) {
                texts += label->text();
            }
        }
        return false;
    }
};
Watcher* watcher = nullptr;

/// `main` returns 0 whatever a scenario found; this hands its verdict to whoever started the program.
void ReportExitStatus()
{
    if (exitStatus != 0) {
        std::fflush(stdout);
        _exit(exitStatus);
    }
}

void StartScenario()
{
    if (!PlannedScenario()) {
        return;
    }
    scenarioThread = std::thread([] {
        exitStatus = PlannedScenario()();
        QMetaObject::invokeMethod(qApp, [] {
            QApplication::closeAllWindows();
            QApplication::quit();
        }, Qt::QueuedConnection);
        scenarioEnded = true;
    });
    QObject::connect(qApp, &QCoreApplication::aboutToQuit, qApp, [] {
        // A scenario that closed the program may still ask something of this thread.
        while (!scenarioEnded) {
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        scenarioThread.join();
    });
}

QWidget* TopWindow()
{
    if (QWidget* popup = QApplication::activePopupWidget()) {
        return popup;
    }
    if (QWidget* modal = QApplication::activeModalWidget()) {
        return modal;
    }
    for (QWidget* window : QApplication::topLevelWidgets()) {
        if (window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

QWidget* FindWidget(const char* objectName)
{
    const QWidget* modal = QApplication::activeModalWidget();
    const QWidget* popup = QApplication::activePopupWidget();
    for (QWidget* widget : QApplication::allWidgets()) {
        if (widget->objectName() == QLatin1String(objectName) && widget->isVisible()
            && (!modal || widget->window() == modal || widget->window() == popup)) {
            return widget;
        }
    }
    return nullptr;
}

/// Touches the glass at the middle of a part of the widget, without waiting for what that leads to, which may be a
/// dialog. False if a finger would meet another widget there.
bool Touch(QWidget* widget, const QRect& part)
{
    QWidget* window = widget->window();
    const QPoint place = widget->mapTo(window, (part & widget->rect()).center());
    const QWidget* met = window->childAt(place);
    const QWidget* popup = QApplication::activePopupWidget();
    if ((met && met != widget && !widget->isAncestorOf(met)) || (!met && widget != window)
        || (popup && popup != window && popup->geometry().contains(window->mapToGlobal(place)))) {
        return false;
    }
    QTimer::singleShot(0, window, [window, place] {
        QTest::mouseClick(window->windowHandle(), Qt::LeftButton, {}, place);
    });
    return true;
}

}

static void ArrangeScenario()
{
    std::atexit(ReportExitStatus);
    if (PlannedScenario()) {
        watcher = new Watcher;
        watcher->setParent(qApp);
        qApp->installEventFilter(watcher);
    }
    QTimer::singleShot(0, StartScenario);
}
Q_COREAPP_STARTUP_FUNCTION(ArrangeScenario)

namespace Robot {

Scenario::Scenario(std::function<int()> scenario)
{
    PlannedScenario() = std::move(scenario);
}

void OnGui(const std::function<void()>& action)
{
    if (QThread::currentThread() == qApp->thread()) {
        action();
    } else {
        QMetaObject::invokeMethod(qApp, action, Qt::BlockingQueuedConnection);
    }
}

Running Start(const std::function<void()>& action)
{
    Running running;
    running.ended = std::make_shared<std::atomic<bool>>(false);
    QMetaObject::invokeMethod(qApp, [action, ended = running.ended] { action(); *ended = true; }, Qt::QueuedConnection);
    return running;
}

bool Running::WaitForEnd(int limitMs) const
{
    return WaitFor([this] { return HasEnded(); }, limitMs);
}

Meanwhile::Meanwhile(std::function<void()> steps)
    : thread([this, steps = std::move(steps)] {
          steps();
          ended = true;
      })
{
}

Meanwhile::~Meanwhile()
{
    // The steps may still ask something of this thread.
    while (!ended) {
        QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
    thread.join();
}

void When(const std::function<bool()>& condition, const std::function<void()>& action)
{
    QTimer* timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, condition, action] {
        if (timer->isActive() && condition()) {
            timer->stop();
            timer->deleteLater();
            action();
        }
    });
    timer->start(10);
}

bool WaitFor(const std::function<bool()>& condition, int limitMs)
{
    // On a busy machine a sped-up clock runs ahead of what is waited for.
    static const int slack = qEnvironmentVariableIsSet("FAKETIME") ? 10 : 1;
    QElapsedTimer elapsed;
    elapsed.start();
    for (;;) {
        bool holds = false;
        OnGui([&] { holds = condition(); });
        if (holds || elapsed.elapsed() > qint64(limitMs) * slack) {
            return holds;
        }
        usleep(pollUs);
    }
}

bool IsShown(const char* objectName)
{
    bool shown = false;
    OnGui([&] { shown = FindWidget(objectName) != nullptr; });
    return shown;
}

bool WaitForShown(const char* objectName, int limitMs)
{
    return WaitFor([&] { return FindWidget(objectName) != nullptr; }, limitMs);
}

bool WaitForGone(const char* objectName, int limitMs)
{
    return WaitFor([&] { return FindWidget(objectName) == nullptr; }, limitMs);
}

bool IsEnabled(const char* objectName)
{
    bool enabled = false;
    OnGui([&] {
        const QWidget* widget = FindWidget(objectName);
        enabled = widget && widget->isEnabled();
    });
    return enabled;
}

bool Click(const char* objectName, int limitMs)
{
    return WaitFor([&] {
        QWidget* widget = FindWidget(objectName);
        return widget && widget->isEnabled() && Touch(widget, widget->rect());
    }, limitMs);
}

bool ClickRow(const char* listName, const QString& text)
{
    return WaitFor([&] {
        QListView* list = qobject_cast<QListView*>(FindWidget(listName));
        const QModelIndexList rows = list ? list->model()->match(list->model()->index(0, 0), Qt::DisplayRole, text, 1, Qt::MatchExactly) : QModelIndexList();
        if (rows.isEmpty()) {
            return false;
        }
        list->scrollTo(rows.first());
        return Touch(list->viewport(), list->visualRect(rows.first()));
    });
}

bool TypeOnScreen(const QString& text)
{
    for (const QChar letter : text) {
        QByteArray key;
        OnGui([&] {
            if (letter == ' ') {
                key = "button501";
                return;
            }
            // Names may be offered above the keyboard.
            const QWidget* modal = QApplication::activeModalWidget();
            const QWidget* window = modal ? modal : TopWindow();
            for (const QAbstractButton* button : window ? window->findChildren<QAbstractButton*>() : QList<QAbstractButton*>()) {
                if (button->text() == QString(letter) && button->isVisible()) {
                    key = button->objectName().toLatin1();
                }
            }
        });
        if (key.isEmpty() || !Click(key)) {
            return false;
        }
    }
    return true;
}

QString TextOf(const char* objectName)
{
    QString text;
    OnGui([&] {
        if (const QWidget* widget = FindWidget(objectName)) {
            text = widget->property("text").toString();
        }
    });
    return text;
}

QStringList TextsShownBy(const char* labelName)
{
    QStringList texts;
    OnGui([&] { texts = watcher ? watcher->shown.value(QLatin1String(labelName)) : QStringList(); });
    return texts;
}

bool WasShown(const char* labelName, const QString& text, int limitMs)
{
    return WaitFor([&] { return TextsShownBy(labelName).contains(text); }, limitMs);
}

QStringList RowsOf(const char* listName)
{
    QStringList rows;
    OnGui([&] {
        for (const QWidget* widget : QApplication::allWidgets()) {
            const QAbstractItemView* list = qobject_cast<const QAbstractItemView*>(widget);
            for (int row = 0; list && list->objectName() == QLatin1String(listName) && row < list->model()->rowCount(); ++row) {
                rows += list->model()->index(row, 0).data().toString();
            }
        }
    });
    return rows;
}

bool TakePicture(const QString& file)
{
    bool saved = false;
    OnGui([&] {
        QWidget* window = TopWindow();
        saved = window && window->grab().save(file);
    });
    return saved;
}

}

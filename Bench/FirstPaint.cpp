#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <ctime>
#include <cstdio>
#include <cstdlib>
#include <unistd.h>

// Linked into a program, it tells how long that took from its start, given in nanoseconds of the real-time clock by
// ZARN_STARTED, to the first painting of a window, and how many widgets the window has. Then it ends the program.

namespace {

class FirstPaint : public QObject {
public:
    bool event(QEvent* event) override
    {
        return event->type() == QEvent::User ? Tell() : QObject::event(event);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        QWidget* widget = qobject_cast<QWidget*>(watched);
        if (widget && widget->isWindow() && event->type() == QEvent::Paint && !window) {
            window = widget;
            // The children are painted in the same pass; this comes next, before all else that waits.
            QCoreApplication::postEvent(this, new QEvent(QEvent::User), Qt::HighEventPriority);
        }
        return false;
    }

private:
    bool Tell() const
    {
        timespec now = {};
        clock_gettime(CLOCK_REALTIME, &now);
        const long long nanoseconds = now.tv_sec * 1000000000LL + now.tv_nsec - std::atoll(std::getenv("ZARN_STARTED"));
        std::printf("\nfirst paint: %lld us, %lld widgets\n", nanoseconds / 1000,
                    static_cast<long long>(window->findChildren<QWidget*>().size()));
        std::fflush(stdout);
        _exit(0);
    }

    QWidget* window = nullptr;
};

void Watch()
{
    if (std::getenv("ZARN_STARTED")) {
        QCoreApplication::instance()->installEventFilter(new FirstPaint);
    }
}

}

Q_COREAPP_STARTUP_FUNCTION(Watch)

#include "Board/Board.h"

#include <QApplication>
#include <QEvent>
#include <QImage>
#include <QPainter>
#include <QPointer>
#include <QWidget>

namespace {

/// Lies over everything in one window.
class Backdrop : public QWidget {
public:
    explicit Backdrop(QWidget& window) : QWidget(&window)
    {
        setGeometry(window.rect());
        raise();
        show();
        ShowAtOnce();
    }

    void SetSign(const QImage& picture)
    {
        sign = picture;
        ShowAtOnce();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.fillRect(rect(), QColor(0, 0, 0, 128));
        painter.drawImage((width() - sign.width()) / 2, (height() - sign.height()) / 2, sign);
    }

private:
    /// What follows may keep the event loop waiting, and may have switched off the updates of the window.
    void ShowAtOnce()
    {
        const bool updates = window()->updatesEnabled();
        window()->setUpdatesEnabled(true);
        repaint();
        window()->setUpdatesEnabled(updates);
    }

    QImage sign;
};

/// Dims the windows there are, and clears them when the next window has opened and closed.
class Dimmer : public QObject {
public:
    void Dim()
    {
        Clear();
        for (QWidget* window : QApplication::topLevelWidgets()) {
            if (window->isVisible()) {
                backdrops.append(new Backdrop(*window));
            }
        }
        qApp->installEventFilter(this);
    }

    void ShowSign(const QImage& sign)
    {
        for (Backdrop* backdrop : std::as_const(backdrops)) {
            if (backdrop && (backdrop->window()->isActiveWindow() || backdrops.size() == 1)) {
                backdrop->SetSign(sign);
            }
        }
    }

    bool eventFilter(QObject* object, QEvent* event) override
    {
        const QWidget* widget = qobject_cast<QWidget*>(object);
        if (!widget) {
            return false;
        }
        if (event->type() == QEvent::Show && widget->isWindow() && !opened) {
            opened = widget;
        } else if ((event->type() == QEvent::Hide && widget == opened)
                   || (event->type() == QEvent::MouseButtonPress && Covers(widget))) {
            Clear();
        }
        return false;
    }

private:
    bool Covers(const QWidget* widget) const
    {
        for (const Backdrop* backdrop : backdrops) {
            if (backdrop == widget) {
                return true;
            }
        }
        return false;
    }

    void Clear()
    {
        qApp->removeEventFilter(this);
        opened = nullptr;
        for (Backdrop* backdrop : std::as_const(backdrops)) {
            if (backdrop) {
                backdrop->hide();
                backdrop->deleteLater();
            }
        }
        backdrops.clear();
    }

    /// They go with their windows.
    QList<QPointer<Backdrop>> backdrops;
    /// The window that has opened since.
    const QWidget* opened = nullptr;
};

Dimmer* TheDimmer()
{
    if (!qobject_cast<QApplication*>(QCoreApplication::instance())) {
        return nullptr;
    }
    static QPointer<Dimmer> dimmer;
    if (!dimmer) {
        dimmer = new Dimmer;
        dimmer->setParent(qApp);
    }
    return dimmer;
}

}

namespace Board {

void DimWindows()
{
    if (Dimmer* dimmer = TheDimmer()) {
        dimmer->Dim();
    }
}

void ShowWaitingSign(const std::uint8_t* grey, int width, int height)
{
    if (Dimmer* dimmer = TheDimmer()) {
        dimmer->ShowSign(QImage(grey, width, height, width, QImage::Format_Grayscale8).copy());
    }
}

}

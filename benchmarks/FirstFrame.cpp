// Loaded into a Qt program before it starts (LD_PRELOAD): when its first window has
// shown its first frame, it says so by a byte to the file that was opened for that, and ends.

#include "FirstFrame.h"

#include <QCoreApplication>
#include <QEvent>
#include <QQuickWindow>
#include <unistd.h>

namespace {

class FirstFrame : public QObject {
  public:
    using QObject::QObject;

    bool eventFilter(QObject* object, QEvent* event) override {
        auto* window = qobject_cast<QQuickWindow*>(object);
        if (window && event->type() == QEvent::Show)
            connect(
                window, &QQuickWindow::frameSwapped, window,
                [] { _exit(write(kovamo::firstFrameFile, "", 1) == 1 ? 0 : 1); },
                Qt::DirectConnection);
        return false;
    }
};

void watch() {
    QCoreApplication* app = QCoreApplication::instance();
    // What the program starts is not measured.
    qunsetenv("LD_PRELOAD");
    app->installEventFilter(new FirstFrame(app));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)

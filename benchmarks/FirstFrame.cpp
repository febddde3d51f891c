// Loaded into a program of the toolkit's before it starts (LD_PRELOAD): ends it when its first
// window has shown its first frame.

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
                window, &QQuickWindow::frameSwapped, window, [] { _exit(0); },
                Qt::DirectConnection);
        return false;
    }
};

void watch() {
    QCoreApplication* app = QCoreApplication::instance();
    app->installEventFilter(new FirstFrame(app));
}

} // namespace

Q_COREAPP_STARTUP_FUNCTION(watch)

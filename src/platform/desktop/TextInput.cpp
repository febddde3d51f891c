#include "TextInput.h"

#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QInputMethodQueryEvent>
#include <QLibraryInfo>
#include <QTextCharFormat>
#include <QtWaylandClient/QWaylandClientExtension>
#include <algorithm>
#include <utility>
#include <wayland-client-protocol.h>

namespace kovamo {

namespace {

/// The first Qt that speaks version 3 of the protocol, the one that phones' shells offer.
const QVersionNumber firstWithTextInput(6, 7);

constexpr const char* inputMethod = "QT_IM_MODULE";
/// Qt's own input method, which speaks to no keyboard.
constexpr const char* ownInputMethod = "compose";

/// Whether the protocol is for the app to speak: on Wayland, where it was taken from Qt, or Qt is
/// too old to know it.
bool isForApp() {
    const QByteArray method = qgetenv(inputMethod);
    return QGuiApplication::platformName().startsWith(u"wayland") &&
           (method.isEmpty() ? QLibraryInfo::version() < firstWithTextInput
                             : method == ownInputMethod);
}

QVariant ask(QObject& object, Qt::InputMethodQuery query) {
    QInputMethodQueryEvent event(query);
    QGuiApplication::sendEvent(&object, &event);
    return event.value(query);
}

int unitsOfUtf16(const QByteArray& utf8) {
    return static_cast<int>(QString::fromUtf8(utf8).size());
}

class Manager : public QWaylandClientExtensionTemplate<Manager>,
                public QtWayland::zwp_text_input_manager_v3 {
  public:
    Manager() : QWaylandClientExtensionTemplate(1) {}
    ~Manager() override {
        if (isInitialized())
            destroy();
    }
    Q_DISABLE_COPY_MOVE(Manager)
};

/// Bound anew, for Qt shows its own only from 6.5 on.
class Seat : public QWaylandClientExtensionTemplate<Seat> {
  public:
    Seat() : QWaylandClientExtensionTemplate(1) {}
    ~Seat() override {
        if (m_seat)
            wl_seat_destroy(m_seat);
    }
    Q_DISABLE_COPY_MOVE(Seat)

    static const wl_interface* interface() { return &wl_seat_interface; }
    void init(wl_registry* registry, int name, int version) {
        m_seat = static_cast<wl_seat*>(wl_registry_bind(
            registry, static_cast<uint32_t>(name), interface(), static_cast<uint32_t>(version)));
    }
    [[nodiscard]] wl_seat* get() const { return m_seat; }

  private:
    wl_seat* m_seat = nullptr;
};

} // namespace

struct TextInput::Globals {
    Manager manager;
    Seat seat;
};

void TextInput::takeFromQt() {
    const QList<QByteArray> desktops = qgetenv("XDG_CURRENT_DESKTOP").split(':');
    if (desktops.contains("Phosh") && qEnvironmentVariableIsEmpty(inputMethod) &&
        qEnvironmentVariableIsEmpty("QT_IM_MODULES"))
        qputenv(inputMethod, ownInputMethod);
}

TextInput::TextInput() {
    if (isForApp()) {
        m_globals = std::make_unique<Globals>();
        connect(&m_globals->manager, &Manager::activeChanged, this, &TextInput::begin);
        connect(&m_globals->seat, &Seat::activeChanged, this, &TextInput::begin);
    }
    // From one field to the next the focus is nowhere for a moment.
    m_focusRests.setSingleShot(true);
    connect(&m_focusRests, &QTimer::timeout, this, [this] { tell(m_field); });
    connect(qGuiApp, &QGuiApplication::focusObjectChanged, this, &TextInput::watch);
    watch(QGuiApplication::focusObject());
}

TextInput::~TextInput() {
    if (isInitialized())
        destroy();
}

void TextInput::begin() {
    if (!isInitialized() && m_globals->manager.isActive() && m_globals->seat.isActive())
        init(m_globals->manager.get_text_input(m_globals->seat.get()));
}

void TextInput::watch(QObject* focused) {
    keepPreedit();
    if (m_field)
        m_field->removeEventFilter(this);
    m_field = focused && ask(*focused, Qt::ImEnabled).toBool() ? focused : nullptr;
    if (m_field)
        m_field->installEventFilter(this);
    m_focusRests.start();
}

bool TextInput::eventFilter(QObject*, QEvent* event) {
    if (event->type() == QEvent::MouseButtonPress)
        keepPreedit();
    // The user may have closed the keyboard; a tap on the field opens it again.
    if (event->type() == QEvent::MouseButtonRelease) {
        tell(nullptr);
        tell(m_field);
    }
    return false;
}

void TextInput::tell(QObject* field) {
    if (!m_hasSurface || !(field || m_enabled))
        return;
    m_enabled = field;
    if (field) {
        enable();
        const bool isNumber = ask(*field, Qt::ImHints).toInt() & Qt::ImhDigitsOnly;
        set_content_type(content_hint_none,
                         isNumber ? content_purpose_digits : content_purpose_normal);
    } else {
        disable();
    }
    commit();
}

void TextInput::keepPreedit() {
    if (m_preedit.isEmpty())
        return;
    Edit edit;
    edit.commit = m_preedit;
    write(edit);
}

void TextInput::write(const Edit& edit) {
    m_preedit = edit.preedit;
    if (!m_field)
        return;
    QTextCharFormat underlined;
    underlined.setFontUnderline(true);
    const int caretInPreedit = unitsOfUtf16(edit.preedit.toUtf8().left(std::max(0, edit.caret)));
    QInputMethodEvent event(
        edit.preedit,
        {{QInputMethodEvent::TextFormat, 0, static_cast<int>(edit.preedit.size()), underlined},
         {QInputMethodEvent::Cursor, caretInPreedit, edit.caret < 0 ? 0 : 1}});
    const QString text = ask(*m_field, Qt::ImSurroundingText).toString();
    const int caret = ask(*m_field, Qt::ImCursorPosition).toInt();
    const int before = unitsOfUtf16(text.left(caret).toUtf8().right(edit.deletedBefore));
    const int after = unitsOfUtf16(text.mid(caret).toUtf8().left(edit.deletedAfter));
    event.setCommitString(edit.commit, -before, before + after);
    QGuiApplication::sendEvent(m_field, &event);
}

void TextInput::zwp_text_input_v3_enter(wl_surface*) {
    m_hasSurface = true;
    tell(m_field);
}

void TextInput::zwp_text_input_v3_leave(wl_surface*) {
    m_hasSurface = m_enabled = false;
}

void TextInput::zwp_text_input_v3_preedit_string(const QString& text, int32_t caret, int32_t) {
    m_sent.preedit = text;
    m_sent.caret = caret;
}

void TextInput::zwp_text_input_v3_commit_string(const QString& text) {
    m_sent.commit = text;
}

void TextInput::zwp_text_input_v3_delete_surrounding_text(uint32_t before, uint32_t after) {
    m_sent.deletedBefore = before;
    m_sent.deletedAfter = after;
}

void TextInput::zwp_text_input_v3_done(uint32_t) {
    write(std::exchange(m_sent, {}));
}

} // namespace kovamo

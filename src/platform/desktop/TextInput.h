#pragma once

#include "qwayland-text-input-unstable-v3.h"

#include <QObject>
#include <QPointer>
#include <QTimer>
#include <memory>

namespace kovamo {

/// Tells a Wayland compositor of the field that has the focus, and writes into it what the user's
/// on-screen keyboard or input method sends: version 3 of the text-input protocol, for where Qt
/// does not speak it. The keyboard comes and goes with the field, and shows digits for a number.
class TextInput : public QObject, protected QtWayland::zwp_text_input_v3 {
    Q_OBJECT

  public:
    /// Where the compositor does not offer the protocol, nothing happens.
    TextInput();
    /// Sends the keyboard away.
    ~TextInput() override;
    Q_DISABLE_COPY_MOVE(TextInput)

    /// In Phosh, keeps Qt from speaking the protocol, unless the environment names an input method:
    /// Qt 6.8 tells it of text wherever the focus is, and the keyboard comes with each tap.
    /// Requires: the QGuiApplication is not made yet.
    static void takeFromQt();

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

    void zwp_text_input_v3_enter(wl_surface* surface) override;
    void zwp_text_input_v3_leave(wl_surface* surface) override;
    void zwp_text_input_v3_preedit_string(const QString& text, int32_t caret,
                                          int32_t caretEnd) override;
    void zwp_text_input_v3_commit_string(const QString& text) override;
    void zwp_text_input_v3_delete_surrounding_text(uint32_t before, uint32_t after) override;
    void zwp_text_input_v3_done(uint32_t serial) override;

  private:
    /// What the compositor sent since the last "done". Lengths and places are in bytes of UTF-8.
    struct Edit {
        QString preedit;
        /// Below 0, the caret is hidden.
        int caret = 0;
        QString commit;
        uint32_t deletedBefore = 0;
        uint32_t deletedAfter = 0;
    };
    struct Globals;

    void begin();
    void watch(QObject* focused);
    void write(const Edit& edit);
    void keepPreedit();
    /// Says that `field` takes text, or, where it is null, that nothing does.
    void tell(QObject* field);

    std::unique_ptr<Globals> m_globals;
    QPointer<QObject> m_field;
    QTimer m_focusRests;
    Edit m_sent;
    /// What is shown in the field and not yet part of its text.
    QString m_preedit;
    bool m_hasSurface = false;
    bool m_enabled = false;
};

} // namespace kovamo

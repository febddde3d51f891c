#pragma once

#include <QColor>
#include <QObject>
#include <QtQml/qqmlregistration.h>

class QQmlEngine;
class QJSEngine;

namespace kovamo {

/// The appearance in force.
enum class ColorScheme { light, dark };

/// The platform's named colours, each with a light and a dark value.
enum class SystemColor {
    yellow,
    green,
    red,
    blue,
    purple,
    gray,
    accent,
    label,
    secondaryLabel,
    tertiaryLabel,
    separator,
    fill,
    thumb,
    dimming,
    background,
    groupedBackground,
    cell,
    white,
    black,
};

/// The value of `color` in `scheme`.
[[nodiscard]] QColor resolved(SystemColor color, ColorScheme scheme);

/// The named colours in the appearance in force, for QML; changes with it.
class SystemColors : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool dark READ isDark NOTIFY changed)
    Q_PROPERTY(QColor yellow READ yellow NOTIFY changed)
    Q_PROPERTY(QColor green READ green NOTIFY changed)
    Q_PROPERTY(QColor red READ red NOTIFY changed)
    Q_PROPERTY(QColor blue READ blue NOTIFY changed)
    Q_PROPERTY(QColor purple READ purple NOTIFY changed)
    Q_PROPERTY(QColor gray READ gray NOTIFY changed)
    Q_PROPERTY(QColor accent READ accent NOTIFY changed)
    Q_PROPERTY(QColor label READ label NOTIFY changed)
    Q_PROPERTY(QColor secondaryLabel READ secondaryLabel NOTIFY changed)
    Q_PROPERTY(QColor tertiaryLabel READ tertiaryLabel NOTIFY changed)
    Q_PROPERTY(QColor separator READ separator NOTIFY changed)
    Q_PROPERTY(QColor fill READ fill NOTIFY changed)
    Q_PROPERTY(QColor thumb READ thumb NOTIFY changed)
    Q_PROPERTY(QColor dimming READ dimming NOTIFY changed)
    Q_PROPERTY(QColor background READ background NOTIFY changed)
    Q_PROPERTY(QColor groupedBackground READ groupedBackground NOTIFY changed)
    Q_PROPERTY(QColor cell READ cell NOTIFY changed)
    Q_PROPERTY(QColor white READ white CONSTANT)

  public:
    /// The one palette of the process, light until told otherwise.
    static SystemColors& shared();
    static SystemColors* create(QQmlEngine*, QJSEngine*);

    [[nodiscard]] ColorScheme colorScheme() const { return m_scheme; }
    void setColorScheme(ColorScheme scheme);
    [[nodiscard]] bool isDark() const { return m_scheme == ColorScheme::dark; }

    [[nodiscard]] QColor yellow() const { return resolved(SystemColor::yellow, m_scheme); }
    [[nodiscard]] QColor green() const { return resolved(SystemColor::green, m_scheme); }
    [[nodiscard]] QColor red() const { return resolved(SystemColor::red, m_scheme); }
    [[nodiscard]] QColor blue() const { return resolved(SystemColor::blue, m_scheme); }
    [[nodiscard]] QColor purple() const { return resolved(SystemColor::purple, m_scheme); }
    [[nodiscard]] QColor gray() const { return resolved(SystemColor::gray, m_scheme); }
    [[nodiscard]] QColor accent() const { return resolved(SystemColor::accent, m_scheme); }
    [[nodiscard]] QColor label() const { return resolved(SystemColor::label, m_scheme); }
    [[nodiscard]] QColor secondaryLabel() const {
        return resolved(SystemColor::secondaryLabel, m_scheme);
    }
    [[nodiscard]] QColor tertiaryLabel() const {
        return resolved(SystemColor::tertiaryLabel, m_scheme);
    }
    [[nodiscard]] QColor separator() const { return resolved(SystemColor::separator, m_scheme); }
    [[nodiscard]] QColor fill() const { return resolved(SystemColor::fill, m_scheme); }
    [[nodiscard]] QColor thumb() const { return resolved(SystemColor::thumb, m_scheme); }
    [[nodiscard]] QColor dimming() const { return resolved(SystemColor::dimming, m_scheme); }
    [[nodiscard]] QColor background() const { return resolved(SystemColor::background, m_scheme); }
    [[nodiscard]] QColor groupedBackground() const {
        return resolved(SystemColor::groupedBackground, m_scheme);
    }
    [[nodiscard]] QColor cell() const { return resolved(SystemColor::cell, m_scheme); }
    [[nodiscard]] QColor white() const { return resolved(SystemColor::white, m_scheme); }

  Q_SIGNALS:
    void changed();

  private:
    // Private: with a public constructor the QML engine makes an object of its own.
    SystemColors() = default;

    ColorScheme m_scheme = ColorScheme::light;
};

} // namespace kovamo

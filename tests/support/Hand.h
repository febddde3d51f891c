#pragma once

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QString>
#include <functional>
#include <gtest/gtest.h>

namespace kovamo {

/// The topmost item of a window, sheets and popups included, that `fits`; null for none.
[[nodiscard]] QQuickItem* findItem(const QQuickWindow& window,
                                   const std::function<bool(const QQuickItem&)>& fits);

/// The topmost visible text item that reads `text`; null for none, which is a failure if
/// `expected`.
[[nodiscard]] QQuickItem* shown(const QQuickWindow& window, const QString& text,
                                bool expected = true);

/// The topmost visible item that a screen reader calls `name` and describes as `description`.
[[nodiscard]] QQuickItem* named(const QQuickWindow& window, const QString& name,
                                const QString& description = {});

/// Fails the test over every complaint of QML.
void failOnWarnings(const QQmlEngine& engine);

/// The middle of an item in its window.
[[nodiscard]] QPoint middle(const QQuickItem* item);

void click(QQuickWindow& window, QPoint point, Qt::MouseButton button = Qt::LeftButton);

/// Presses at `from`, moves by `by` in small steps and in some time, and lets go.
void drag(QQuickWindow& window, QPoint from, QPoint by, int milliseconds = 4000);

/// Puts `text` into what has the focus, as an on-screen keyboard does.
void type(const QString& text);

} // namespace kovamo

#pragma once

#include "app/KovamoApp.h"
#include "app/RootView.h"
#include "support/Book.h"
#include "support/Hand.h"

#include <QAccessible>
#include <QQmlEngine>
#include <QTest>

namespace kovamo {

/// The running app on the store of a book, from its start to its end.
class Visit {
  public:
    explicit Visit(Book& book) : m_wayBack(book.container), m_root(book.context, &m_wayBack) {
        failOnWarnings(m_engine);
        m_window = KovamoApp::showWindow(m_engine, m_root);
        m_window->setProperty("reducedMotion", true);
        m_window->requestActivate();
        EXPECT_TRUE(QTest::qWaitForWindowActive(m_window.get()));
    }

    /// Whether a text comes to be shown, or goes.
    [[nodiscard]] bool shows(const QString& text, bool expected = true) const {
        return soon([&] { return (shown(*m_window, text, false) != nullptr) == expected; });
    }
    [[nodiscard]] bool hides(const QString& text) const { return shows(text, false); }
    /// Whether a screen reader comes to find an element of a name, or to miss it.
    [[nodiscard]] bool has(const QString& name, bool expected = true) const {
        return soon([&] { return (named(*m_window, name) != nullptr) == expected; });
    }
    [[nodiscard]] bool lacks(const QString& name) const { return has(name, false); }
    [[nodiscard]] bool isEnabled(const QString& name) const {
        return named(*m_window, name)->isEnabled();
    }

    void click(const QString& name, const QString& description = {}) {
        ASSERT_TRUE(soon([&] { return named(*m_window, name, description); }))
            << name.toStdString();
        (void)m_window->grabWindow(); // lays out what has just come
        kovamo::click(*m_window, middle(named(*m_window, name, description)));
    }
    /// What can be seen and pressed, sheets' last. A menu's line has no role while nobody listens.
    [[nodiscard]] std::vector<std::pair<QAccessibleInterface*, QSizeF>> targets() const {
        static const QSet roles{QAccessible::Button,     QAccessible::ButtonMenu,
                                QAccessible::CheckBox,   QAccessible::ListItem,
                                QAccessible::MenuItem,   QAccessible::PageTab,
                                QAccessible::RadioButton};
        std::vector<std::pair<QAccessibleInterface*, QSizeF>> found;
        (void)m_window->grabWindow(); // lays out what has just come
        (void)findItem(*m_window, [&](const QQuickItem& item) {
            auto* element = QAccessible::queryAccessibleInterface(&const_cast<QQuickItem&>(item));
            if (item.isVisible() && element &&
                ((roles.contains(element->role()) && !element->text(QAccessible::Name).isEmpty()) ||
                 item.inherits("QQuickMenuItem")))
                found.emplace_back(element, item.size());
            return false;
        });
        return found;
    }
    /// Presses an element as a screen reader does, wherever it is.
    void act(const QString& name) const {
        for (const auto& [element, size] : targets())
            if (element->text(QAccessible::Name) == name)
                return element->actionInterface()->doAction(
                    QAccessibleActionInterface::pressAction());
        ADD_FAILURE() << "nothing to press is " << name.toStdString();
    }
    /// The names of those that are smaller than a finger.
    [[nodiscard]] std::string smallTargets() const {
        QString small;
        for (const auto& [element, size] : targets())
            if (std::min(size.width(), size.height()) < 44)
                small += element->text(QAccessible::Name) + u'|';
        return small.toStdString();
    }
    void clickBesideTheSheet() { kovamo::click(*m_window, {200, 10}); }
    /// Does `leave`, and while what it moves has hardly begun to, presses Ctrl and a key.
    void catchWith(const std::function<void()>& leave, Qt::Key key) {
        m_window->setProperty("reducedMotion", false);
        leave();
        m_window->setProperty("reducedMotion", true);
        press(key, Qt::ControlModifier);
    }
    void perform(const Start& start) { m_root.perform(start); }
    void write(const QString& field, const QString& text) {
        click(field);
        type(text);
    }
    /// Return leads to the next field, and out of the last one.
    void writeNext(const QString& text) {
        press(Qt::Key_Return);
        type(text);
    }
    void drag(QPoint from, QPoint by) { kovamo::drag(*m_window, from, by); }
    void resize(QSize size) { m_window->resize(size); }
    /// Whether a text appears above or below the middle of the window's bar.
    [[nodiscard]] bool isInSight(const QString& text, bool expected) const {
        return soon([&] { return (middle(shown(*m_window, text)).y() > 22) == expected; });
    }
    /// Shows text twice as large as usual in a window of a width.
    void enlargeText(int width) {
        m_window->setProperty("textScale", 2);
        m_window->resize(width, m_window->height());
    }
    [[nodiscard]] bool focusComesToBeSeen() const {
        return soon([&] {
            const QQuickItem* focused = m_window->activeFocusItem();
            return focused->isVisible() && focused->activeFocusOnTab();
        });
    }
    [[nodiscard]] double scaleOf(const QString& text) const {
        return shown(*m_window, text)->scale();
    }
    /// Whether a text comes to be shown with all its letters.
    [[nodiscard]] bool showsWhole(const QString& text) const {
        return soon([&] {
            const QQuickItem* item = shown(*m_window, text, false);
            return item && item->property("contentWidth").toDouble() > 10 &&
                   !item->property("truncated").toBool();
        });
    }
    /// A property of the topmost visible item of a QML type; of a type without one, NaN.
    [[nodiscard]] double measure(const char* type, const char* property) const {
        const QQuickItem* found = findItem(*m_window, [&](const QQuickItem& item) {
            return item.isVisible() && QByteArray(item.metaObject()->className()).startsWith(type);
        });
        return found ? found->property(property).toDouble() : std::nan("");
    }
    /// Whether an element comes to lie above another one.
    [[nodiscard]] bool isAbove(const QString& upper, const QString& lower) const {
        return soon([&] {
            const QQuickItem* item = named(*m_window, upper);
            return item && item->mapToScene({0, item->height()}).y() <=
                               named(*m_window, lower)->mapToScene({}).y();
        });
    }
    void setReducedMotion(bool reduced) { m_window->setProperty("reducedMotion", reduced); }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(m_window.get(), key, modifiers);
    }

  private:
    static bool soon(const std::function<bool()>& holds) { return QTest::qWaitFor(holds, 30000); }
    WayBack m_wayBack;
    RootView m_root;
    QQmlEngine m_engine;
    std::unique_ptr<QQuickWindow> m_window;
};

} // namespace kovamo

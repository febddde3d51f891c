#include "AccessibleItems.h"

#include "platform/controls/rows/DeletableRow.h"

#include <QAccessibleObject>
#include <QCoreApplication>
#include <QQuickWindow>
#include <algorithm>

namespace kovamo {

namespace {

/// Whether an item has no name and at most the role of one that holds others: Qt's own controls and
/// popups attach Accessible without filling it in.
bool isUnnamedLayer(const QObject* said) {
    constexpr int layers[] = {QAccessible::NoRole,      QAccessible::Client,   QAccessible::Pane,
                              QAccessible::LayeredPane, QAccessible::Grouping, QAccessible::Dialog};
    return said->property("name").toString().isEmpty() &&
           std::ranges::find(layers, said->property("role").toInt()) != std::end(layers);
}

/// What QML says of an item by "Accessible."; null where it says nothing.
QObject* saidOf(const QQuickItem* item) {
    const auto says = std::ranges::find_if(item->children(), [](const QObject* child) {
        return child->inherits("QQuickAccessibleAttached");
    });
    return says == item->children().end() ? nullptr : *says;
}

/// The same; null where nothing is to be read, too.
QObject* attached(const QQuickItem* item) {
    QObject* says = saidOf(item);
    return !says || says->property("ignored").toBool() || isUnnamedLayer(says) ? nullptr : says;
}

void gather(const QQuickItem* item, QList<QQuickItem*>& found) {
    for (QQuickItem* child : item->childItems())
        if (attached(child))
            found.append(child);
        else
            gather(child, found);
}

/// Whether an item is the layer of a sheet: a card that the app goes on beside has its dialog
/// within, and its layer no name.
bool isSheet(const QQuickItem* item) {
    const QObject* says = attached(item);
    return says && says->property("role").toInt() == QAccessible::Dialog && item->parentItem() &&
           item->parentItem()->inherits("QQuickOverlay");
}

/// Whether an open sheet covers the item.
bool isBehindSheet(const QQuickItem* item) {
    const QList<QQuickItem*> layers = item->window()->contentItem()->childItems();
    const auto overlay = std::ranges::find_if(
        layers, [](const QQuickItem* layer) { return layer->inherits("QQuickOverlay"); });
    if (overlay == layers.end())
        return false;
    const QList<QQuickItem*> popups = (*overlay)->childItems();
    for (auto popup = popups.rbegin(); popup != popups.rend(); ++popup) {
        if (*popup == item || (*popup)->isAncestorOf(item))
            return false;
        if ((*popup)->isVisible() && isSheet(*popup))
            return true;
    }
    return false;
}

/// What QML says of an item, with what Qt's own interface leaves out: that it is disabled, modal or
/// behind a sheet, and that of all items around the focus one alone has it.
class AccessibleItem : public QAccessibleObject {
  public:
    explicit AccessibleItem(QQuickItem* item) : QAccessibleObject(item) {}

    [[nodiscard]] QAccessibleInterface* parent() const override {
        for (QQuickItem* item = this->item()->parentItem(); item; item = item->parentItem())
            if (attached(item))
                return QAccessible::queryAccessibleInterface(item);
        return QAccessible::queryAccessibleInterface(window());
    }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(children().value(index));
    }
    [[nodiscard]] int childCount() const override { return int(children().size()); }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return int(children().indexOf(child->object()));
    }
    [[nodiscard]] QWindow* window() const override { return item()->window(); }
    [[nodiscard]] QString text(QAccessible::Text text) const override {
        return text == QAccessible::Name          ? said("name").toString()
               : text == QAccessible::Description ? said("description").toString()
                                                  : QString();
    }
    [[nodiscard]] QAccessible::Role role() const override {
        return static_cast<QAccessible::Role>(said("role").toInt());
    }
    [[nodiscard]] QAccessible::State state() const override {
        const QRectF scene(QPointF(), window() ? window()->size() : QSize());
        QAccessible::State state;
        state.invisible =
            !window() || !window()->isVisible() || !item()->isVisible() || isBehindSheet(item());
        state.offscreen = !scene.intersects(item()->mapRectToScene(item()->boundingRect()));
        state.focusable = item()->activeFocusOnTab() || says("focusable");
        state.disabled = !item()->isEnabled();
        state.checkable = says("checkable");
        state.checked = says("checked");
        state.selectable = says("selectable");
        state.selected = says("selected");
        state.modal = isSheet(item());
        state.focused = window() && item()->window()->activeFocusItem() == item();
        return state;
    }
    [[nodiscard]] QRect rect() const override {
        const QRect area = item()->mapRectToScene(item()->boundingRect()).toRect();
        return window() ? QRect(window()->mapToGlobal(area.topLeft()), area.size()) : area;
    }

  protected:
    [[nodiscard]] QQuickItem* item() const { return static_cast<QQuickItem*>(object()); }
    [[nodiscard]] virtual QList<QQuickItem*> children() const {
        QList<QQuickItem*> items;
        gather(item(), items);
        return items;
    }

  private:
    [[nodiscard]] bool says(const char* property) const { return said(property).toBool(); }
    [[nodiscard]] QVariant said(const char* property) const {
        const QObject* says = attached(item());
        return says ? says->property(property) : QVariant();
    }
};

/// A list, whose rows are read from top to bottom: ListView creates them in another order.
class AccessibleList : public AccessibleItem {
  public:
    using AccessibleItem::AccessibleItem;

  protected:
    [[nodiscard]] QList<QQuickItem*> children() const override {
        QList<QQuickItem*> items = AccessibleItem::children();
        const auto top = [](const QQuickItem* child) { return child->mapToScene({}).y(); };
        std::stable_sort(items.begin(), items.end(), [top](const auto* one, const auto* other) {
            return top(one) < top(other);
        });
        return items;
    }
};

/// What can be pressed, or can take the keyboard's focus.
class AccessibleControl : public AccessibleItem, public QAccessibleActionInterface {
  public:
    using AccessibleItem::AccessibleItem;

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface && !actionNames().isEmpty()
                   ? static_cast<QAccessibleActionInterface*>(this)
                   : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override {
        const QAccessible::State now = state();
        QStringList names;
        if (!now.disabled && isPressable())
            names.append(pressAction());
        if (!now.disabled && now.focusable)
            names.append(setFocusAction());
        return names;
    }
    void doAction(const QString& name) override {
        if (!actionNames().contains(name))
            return;
        if (name == setFocusAction())
            item()->forceActiveFocus(Qt::OtherFocusReason);
        else
            QMetaObject::invokeMethod(attached(item()), "pressAction");
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

  private:
    [[nodiscard]] bool isPressable() const {
        constexpr QAccessible::Role pressable[] = {QAccessible::Button,   QAccessible::ButtonMenu,
                                                   QAccessible::PageTab,  QAccessible::RadioButton,
                                                   QAccessible::CheckBox, QAccessible::MenuItem};
        return std::ranges::find(pressable, role()) != std::end(pressable);
    }
};

/// A row that reads as one.
class AccessibleRow : public AccessibleControl {
  public:
    using AccessibleControl::AccessibleControl;

    [[nodiscard]] QStringList actionNames() const override {
        return {pressAction(), QCoreApplication::translate("SwipeRow", "Delete")};
    }
    void doAction(const QString& name) override {
        auto* row = static_cast<DeletableRow*>(item());
        if (name == pressAction())
            Q_EMIT row->clicked();
        else if (actionNames().contains(name))
            Q_EMIT row->deleteRequested();
    }
    [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override {
        return name == pressAction() ? QStringList{QStringLiteral("Return")}
                                     : QStringList{QStringLiteral("Delete")};
    }

  protected:
    [[nodiscard]] QList<QQuickItem*> children() const override { return {}; }
};

QAccessibleInterface* accessibleItem(const QString&, QObject* object) {
    auto* item = qobject_cast<QQuickItem*>(object);
    // Qt asks once for each item, before QML has said what it is. Qt's own interface has what a
    // text field needs.
    if (!item || !saidOf(item) || item->inherits("QQuickTextInput"))
        return nullptr;
    if (item->inherits("QQuickListView"))
        return new AccessibleList(item);
    if (qobject_cast<DeletableRow*>(item))
        return new AccessibleRow(item);
    return new AccessibleControl(item);
}

} // namespace

void installAccessibleItems() {
    QAccessible::installFactory(accessibleItem);
}

} // namespace kovamo

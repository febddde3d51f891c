#include "AccessibleItems.h"

#include "platform/controls/rows/DeletableRow.h"

#include <QAccessibleObject>
#include <QCoreApplication>
#include <QQuickWindow>
#include <algorithm>

namespace kovamo {

namespace {

/// What QML says of an item by "Accessible."; null where it says nothing, or to ignore it.
QObject* attached(const QQuickItem* item) {
    for (QObject* child : item->children())
        if (child->inherits("QQuickAccessibleAttached"))
            return child->property("ignored").toBool() ? nullptr : child;
    return nullptr;
}

void gather(const QQuickItem* item, QList<QQuickItem*>& found) {
    for (QQuickItem* child : item->childItems())
        if (attached(child))
            found.append(child);
        else
            gather(child, found);
}

/// What Qt says of an item, without its children.
class AccessibleItem : public QAccessibleObject {
  public:
    explicit AccessibleItem(QQuickItem* item) : QAccessibleObject(item) {}

    [[nodiscard]] QAccessibleInterface* parent() const override {
        for (QQuickItem* item = this->item()->parentItem(); item; item = item->parentItem())
            if (attached(item))
                return QAccessible::queryAccessibleInterface(item);
        return QAccessible::queryAccessibleInterface(window());
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
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
        state.invisible = !window() || !window()->isVisible() || !item()->isVisible();
        state.offscreen = !scene.intersects(item()->mapRectToScene(item()->boundingRect()));
        state.focusable = item()->activeFocusOnTab();
        state.focused = window() && item()->window()->activeFocusItem() == item();
        return state;
    }
    [[nodiscard]] QRect rect() const override {
        const QRect area = item()->mapRectToScene(item()->boundingRect()).toRect();
        return window() ? QRect(window()->mapToGlobal(area.topLeft()), area.size()) : area;
    }

  protected:
    [[nodiscard]] QQuickItem* item() const { return static_cast<QQuickItem*>(object()); }

  private:
    [[nodiscard]] QVariant said(const char* property) const {
        const QObject* says = attached(item());
        return says ? says->property(property) : QVariant();
    }
};

class AccessibleList : public AccessibleItem {
  public:
    using AccessibleItem::AccessibleItem;

    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return QAccessible::queryAccessibleInterface(children().value(index));
    }
    [[nodiscard]] int childCount() const override { return int(children().size()); }
    int indexOfChild(const QAccessibleInterface* child) const override {
        return int(children().indexOf(child->object()));
    }

  private:
    [[nodiscard]] QList<QQuickItem*> children() const {
        QList<QQuickItem*> items;
        gather(item(), items);
        const auto top = [](const QQuickItem* child) { return child->mapToScene({}).y(); };
        std::stable_sort(items.begin(), items.end(), [top](const auto* one, const auto* other) {
            return top(one) < top(other);
        });
        return items;
    }
};

class AccessibleRow : public AccessibleItem, public QAccessibleActionInterface {
  public:
    using AccessibleItem::AccessibleItem;

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
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
};

QAccessibleInterface* accessibleItem(const QString& type, QObject* object) {
    auto* item = qobject_cast<QQuickItem*>(object);
    if (!item || !attached(item))
        return nullptr;
    if (type == u"QQuickListView")
        return new AccessibleList(item);
    if (type == u"kovamo::DeletableRow")
        return new AccessibleRow(item);
    return nullptr;
}

} // namespace

void installAccessibleItems() {
    QAccessible::installFactory(accessibleItem);
}

} // namespace kovamo

#include "Stage.h"

#include "support/World.h"

#include <QAccessible>
#include <gtest/gtest.h>

namespace kovamo {
namespace {

// What a screen reader finds below `item`: "role name", one line each, in its order.
std::string heard(QAccessibleInterface* element) {
    std::string words;
    const QString name = element->text(QAccessible::Name);
    if (element->state().invisible)
        return {};
    if (!name.isEmpty())
        words = std::to_string(element->role()) + " " + name.toStdString() +
                (element->state().checked ? " checked\n" : "\n");
    for (int child = 0; child < element->childCount(); ++child)
        words += heard(element->child(child));
    return words;
}

} // namespace

TEST(Accessibility, EveryControlHasItsRoleAndName) {
    const World world("2024-05-15 10:00");
    QAccessible::setActive(true);
    Stage stage(R"(
        Column {
            width: 390
            BarButton { symbol: 'plus'; text: 'Add Item' }
            NavigationBar { title: 'Title'; width: 390; canGoBack: true }
            SegmentedControl { labels: ['Earning', 'Spending']; selected: 'Spending' }
            FormTextField { placeholder: 'Amount' }
            ToggleRow { label: 'Recurring'; checked: true }
            DateField { label: 'Start' }
            FormButton { text: 'Save' }
            ActionButton { text: 'create'; symbol: 'plus' }
            RollingNumber { text: '1,234'; color: 'black' }
            EmphasizedText { markup: '**Current**' }
            SwipeRow { accessibleName: 'Groceries, $42'; PlainText { text: 'x'; Accessible.ignored: true } }
        })");
    const auto line = [](QAccessible::Role role, const char* name) {
        return std::to_string(role) + " " + name + "\n";
    };
    EXPECT_EQ(
        heard(QAccessible::queryAccessibleInterface(stage.window())),
        line(QAccessible::Button, "Add Item") + line(QAccessible::Button, "Back") +
            line(QAccessible::Heading, "Title") + line(QAccessible::RadioButton, "Earning") +
            line(QAccessible::RadioButton, "Spending checked") +
            line(QAccessible::EditableText, "Amount") +
            line(QAccessible::CheckBox, "Recurring checked") + line(QAccessible::Button, "Start") +
            line(QAccessible::Button, "Save") + line(QAccessible::Button, "create") +
            line(QAccessible::StaticText, "1,234") + line(QAccessible::StaticText, "Current") +
            line(QAccessible::ListItem, "Groceries, $42") + line(QAccessible::Button, "Delete"));
}

} // namespace kovamo

import QtQuick
import Kovamo.Controls
import Kovamo.Desktop
import Kovamo.Editing

// Sheet creates its content in another file, which ComponentBehavior: Bound does not allow.
// qmllint disable unqualified

/*! The button of a bar that exports, imports and goes back to a copy. */
BarButton {
    id: button

    required property ExchangeState exchange

    Accessible.role: Accessible.ButtonMenu
    description: qsTr("Exports, imports, and goes back to a copy")
    symbol: "square.and.arrow.up"
    text: qsTr("Share")

    onClicked: menu.popup(button, LayoutMirroring.enabled ? 0 : button.width - menu.width, button.height)

    ContextMenu {
        id: menu

        MenuItem {
            text: qsTr("Export…")

            onTriggered: chooser.save(qsTr("Export"), button.exchange.suggestedName())
        }
        MenuItem {
            text: qsTr("Import…")

            onTriggered: chooser.open(qsTr("Import"))
        }
        MenuItem {
            text: qsTr("Go Back to a Copy…")

            onTriggered: button.exchange.showCopies()
        }
    }
    FileChooser {
        id: chooser

        onOpened: path => button.exchange.importFrom(path)
        onSaved: (path, mayReplace) => button.exchange.exportTo(path, mayReplace)
        onUnavailable: (saves, title, name) => qtDialog.setSource(Qt.resolvedUrl("QtFileDialog.qml"), {
                    "chooser": chooser,
                    "saves": saves,
                    "suggestedName": name,
                    "title": title
                })
    }
    Loader {
        id: qtDialog
    }
    ExchangeSheet {
        exchange: button.exchange
    }
}

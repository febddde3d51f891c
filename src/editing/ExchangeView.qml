import QtQuick
import Kovamo.Controls
import Kovamo.Editing
import Kovamo.Forms

// Sheet and NavigationStack create their content from components in other files, which pragma
// ComponentBehavior: Bound does not allow; so the ids of this file are used unqualified.
// qmllint disable unqualified

/*! What an export, an import or a copy does, and the button that does it. */
NavigationStack {
    id: screen

    required property ExchangeState exchange

    initialPage: GroupedForm {
        navigationTitle: screen.exchange.title

        FormSection {
            visible: screen.exchange.lines.length > 0

            Repeater {
                model: screen.exchange.lines

                FormRow {
                    id: row

                    required property string modelData

                    Accessible.name: modelData
                    Accessible.role: Accessible.StaticText
                    activeFocusOnTab: false
                    contentHeight: words.implicitHeight

                    PlainText {
                        id: words

                        Accessible.ignored: true
                        anchors.verticalCenter: parent.verticalCenter
                        elide: Text.ElideNone
                        maximumLineCount: 100
                        text: row.modelData
                        width: parent.width
                        wrapMode: Text.Wrap
                    }
                }
            }
        }
        FormSection {
            visible: screen.exchange.choices.length > 0

            Repeater {
                model: screen.exchange.choices

                FormButton {
                    required property int index
                    required property string modelData

                    text: modelData

                    onClicked: screen.exchange.choose(index)
                }
            }
        }
        FormSection {
            FormButton {
                focus: true
                text: screen.exchange.action
                visible: text !== ""

                onClicked: screen.exchange.proceed()
            }
            FormButton {
                text: screen.exchange.action !== "" || screen.exchange.isBusy ? qsTr("Cancel") : qsTr("Done")

                onClicked: screen.exchange.dismiss()
            }
        }
    }
}

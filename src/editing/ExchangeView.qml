import QtQuick
import Kovamo.Controls
import Kovamo.Editing
import Kovamo.Forms

// Sheet and NavigationStack create their content from components in other files, which pragma
// ComponentBehavior: Bound does not allow; so the ids of this file are used unqualified.
// qmllint disable unqualified

/*! What an export, an import or a copy does, the button that does it, and below it, so that the button
    is in sight on every screen, what is wrong with single lines. */
NavigationStack {
    id: screen

    required property ExchangeState exchange

    initialPage: GroupedForm {
        navigationTitle: screen.exchange.title

        Words {
            lines: screen.exchange.lines
        }
        FormSection {
            visible: screen.exchange.choices.length > 0

            Repeater {
                model: screen.exchange.choices

                FormButton {
                    required property int index
                    required property string modelData

                    text: modelData

                    Component.onCompleted: if (index === 0)
                        focus = true
                    onClicked: screen.exchange.choose(index)
                }
            }
        }
        FormSection {
            FormButton {
                id: proceed

                text: screen.exchange.action
                visible: text !== ""

                onClicked: screen.exchange.proceed()
                onVisibleChanged: (visible ? proceed : leave).focus = true
            }
            FormButton {
                id: leave

                focus: true
                text: screen.exchange.action !== "" || screen.exchange.isBusy ? qsTr("Cancel") : qsTr("Done")

                onClicked: screen.exchange.dismiss()
            }
        }
        Words {
            lines: screen.exchange.details
        }
    }

    component Words: FormSection {
        id: section

        required property list<string> lines

        visible: lines.length > 0

        Repeater {
            model: section.lines

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
}

import QtQuick
import QtQuick.Templates as T
import Kovamo.Controls
import Kovamo.Editing
import Kovamo.Emoji
import Kovamo.Forms

/*! The form through which a transaction is recorded or changed. */
GroupedForm {
    id: form

    required property AddTransactionState transaction
    /*! Whether the panel of emoji is open. */
    property bool choosesEmoji: false

    function choose(emoji: string) {
        transaction.emoji = emoji;
        choosesEmoji = false;
    }

    navigationTitle: transaction.navigationTitle

    Shortcut {
        // A form that is sliding off the screen must not take the key from the form that follows it.
        enabled: form.transaction.canSave && form.T.StackView.status >= T.StackView.Activating
        sequence: "Ctrl+S"

        onActivated: form.transaction.save()
    }
    FormSection {
        FormTextField {
            focus: true
            next: titleField
            placeholder: qsTr("Emoji")
            text: form.transaction.emoji

            trailing: BarButton {
                symbol: "face.smiling"
                text: qsTr("Choose an emoji")

                onClicked: form.choosesEmoji = true
            }

            onEdited: text => form.transaction.emoji = text
        }
        FormTextField {
            id: titleField

            next: amountField
            placeholder: qsTr("Title")
            text: form.transaction.title

            onEdited: text => form.transaction.title = text
        }
        PickerRow {
            labels: form.transaction.positiveTypes
            selected: form.transaction.selectedPositive

            onPicked: label => form.transaction.selectedPositive = label
        }
        FormTextField {
            id: amountField

            numeric: true
            placeholder: qsTr("Amount")
            text: form.transaction.amount

            onEdited: text => form.transaction.amount = text
        }
        ToggleRow {
            checked: form.transaction.isRecurring
            label: qsTr("Recurring")

            onToggled: on => form.transaction.isRecurring = on
        }
        DateField {
            label: qsTr("Date")
            moment: form.transaction.startDate
            visible: !form.transaction.isRecurring

            onPicked: moment => form.transaction.startDate = moment
        }
        PickerRow {
            labels: form.transaction.types
            selected: form.transaction.selectedType
            visible: form.transaction.isRecurring

            onPicked: label => form.transaction.selectedType = label
        }
        DateField {
            label: qsTr("Start")
            moment: form.transaction.startDate
            visible: form.transaction.isRecurring

            onPicked: moment => form.transaction.startDate = moment
        }
        DateField {
            label: qsTr("End")
            minimumMoment: form.transaction.startDate
            moment: form.transaction.endDate
            visible: form.transaction.isRecurring

            onPicked: moment => form.transaction.endDate = moment
        }
    }
    FormSection {
        FormButton {
            enabled: form.transaction.canSave
            text: qsTr("Save")

            onClicked: form.transaction.save()
        }
    }
    Sheet {
        presented: form.choosesEmoji
        title: qsTr("Emoji")

        onDismissed: form.choosesEmoji = false

        // Sheet creates its content from a component in another file, which pragma
        // ComponentBehavior: Bound does not allow; so the ids of this file are used unqualified.
        // qmllint disable unqualified
        EmojiPanel {
            onCancelled: form.choosesEmoji = false
            onPicked: emoji => form.choose(emoji)
        }
        // qmllint enable unqualified
    }
}

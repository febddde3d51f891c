import QtQuick

/*! Text with inline bold markup around the whole of it: "**Current**". Blanks inside the stars
    stay as they are written, at the ends too. */
PlainText {
    id: label

    /*! The text, in "**" on both sides where it is bold. */
    required property string markup
    /*! The type, to which the markup adds the weight. */
    property font textStyle: TextStyles.body
    readonly property bool emphasized: markup.length >= 4 && markup.startsWith("**") && markup.endsWith("**")

    font: label.emphasized ? TextStyles.bold(label.textStyle) : label.textStyle
    text: label.emphasized ? label.markup.slice(2, -2) : label.markup
}

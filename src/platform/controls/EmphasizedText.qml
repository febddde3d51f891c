import QtQuick

/*! Text with inline bold markup around the whole of it: "**Current**". Blanks inside the stars
    stay as they are written, at the ends too. */
PlainText {
    id: label

    /*! The text, in "**" on both sides where it is bold. */
    required property string markup
    readonly property bool emphasized: markup.length >= 4 && markup.startsWith("**") && markup.endsWith("**")

    font.weight: label.emphasized ? Font.Bold : Font.Normal
    text: label.emphasized ? label.markup.slice(2, -2) : label.markup
}

import QtQuick
import Plain

Window {
    height: 844
    visible: true
    width: 390

    Column {
        Text {
            font.pixelSize: 17
            text: "create a transaction"
        }
        Text {
            font.pixelSize: 17
            text: "🙄"
        }
        SystemImage {
            height: 22
            name: "plus"
            width: 22
        }
    }
}

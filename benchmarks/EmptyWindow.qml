import QtQuick

Window {
    height: 844
    visible: true
    width: 390
}

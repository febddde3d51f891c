import QtQuick
import QtQuick.Templates as T

/*! Pages on top of each other under one navigation bar. A page is any item; its property
    `navigationTitle` is the bar's title while it is on top. Lower pages stay as they are. */
FocusScope {
    id: stack

    /*! The page at the bottom. */
    required property Component initialPage
    readonly property alias depth: view.depth
    readonly property bool canGoBack: view.depth > 1
    readonly property int direction: LayoutMirroring.enabled ? -1 : 1

    /*! Shows a page made of `page`, its properties set from `properties`. */
    function push(page: Component, properties: var) {
        view.push(page, properties ?? {});
    }

    /*! Goes back one page; false at the bottom, where nothing happens. */
    function pop(): bool {
        return stack.canGoBack && view.pop() !== null;
    }

    function titleOf(page: var): string {
        return page ? page["navigationTitle"] ?? "" : "";
    }

    Keys.onBackPressed: event => event.accepted = stack.pop()
    Keys.onEscapePressed: event => event.accepted = stack.pop()

    NavigationBar {
        id: bar

        canGoBack: stack.canGoBack
        title: stack.titleOf(view.currentItem)
        width: parent.width

        // The back button disappears with its page: the focus must not stay in it.
        onBack: if (stack.pop())
            view.forceActiveFocus(Qt.BacktabFocusReason)
    }
    T.StackView {
        id: view

        anchors.fill: parent
        anchors.topMargin: bar.height
        clip: true
        focus: true
        initialItem: stack.initialPage

        popEnter: Slide {
            from: -0.3 * stack.direction * view.width
        }
        popExit: Slide {
            to: stack.direction * view.width
        }
        pushEnter: Slide {
            from: stack.direction * view.width
        }
        pushExit: Slide {
            to: -0.3 * stack.direction * view.width
        }

        onCurrentItemChanged: if (currentItem)
            currentItem.focus = true
    }
    component Slide: Transition {
        id: slide

        property real from: 0
        property real to: 0

        NumberAnimation {
            duration: Motion.duration(380)
            easing.type: Easing.OutQuint
            from: slide.from
            property: "x"
            to: slide.to
        }
    }
}

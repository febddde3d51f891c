import QtQuick
import QtQuick.Templates as T

/*! Pages on top of each other under one navigation bar. A page is any item; its property
    `navigationTitle` is the bar's title while it is on top; one whose `hidesNavigationBar` is true
    has the bar's room, too. Lower pages stay as they are. */
FocusScope {
    id: stack

    /*! The page at the bottom. */
    required property Component initialPage
    /*! The buttons at the bar's trailing end. */
    property alias trailing: bar.trailing
    readonly property alias depth: view.depth
    readonly property bool canGoBack: view.depth > 1
    readonly property int direction: LayoutMirroring.enabled ? -1 : 1
    /*! Where the page below the one on top rests. */
    readonly property real besideTop: -0.3 * direction * view.width

    /*! Shows a page made of `page`, its properties set from `properties`. */
    function push(page: Component, properties: var) {
        view.push(page, properties ?? {});
    }

    /*! Goes back one page; false at the bottom, where nothing happens. */
    function pop(): bool {
        return stack.canGoBack && view.pop() !== null;
    }

    /*! Goes back one page. The back button disappears with its page: the focus must not stay in it. */
    function goBack() {
        if (stack.pop())
            view.forceActiveFocus(Qt.BacktabFocusReason);
    }

    /*! Moves the page on top aside by `distance` points, and the one below it as far as it shows. */
    function pullAside(distance: real) {
        const below = view.get(view.depth - 2, T.StackView.ForceLoad) as Item;
        below.visible = distance > 0;
        below.x = stack.besideTop * (1 - distance / view.width);
        view.currentItem.x = stack.direction * distance;
    }

    /*! Ends a drag: the page leaves at `velocity` points a second, or comes back. */
    function release(velocity: real) {
        if (edge.distance + velocity * 0.2 > view.width / 2)
            stack.goBack();
        else
            wayBack.restart();
    }

    function titleOf(page: var): string {
        return page ? page["navigationTitle"] ?? "" : "";
    }

    function hidesBar(page: var): bool {
        return page ? page["hidesNavigationBar"] ?? false : false;
    }

    Keys.onBackPressed: event => event.accepted = stack.pop()
    Keys.onEscapePressed: event => event.accepted = stack.pop()

    NavigationBar {
        id: bar

        canGoBack: stack.canGoBack
        title: stack.titleOf(view.currentItem)
        visible: !stack.hidesBar(view.currentItem)
        width: parent.width

        onBack: stack.goBack()
    }
    T.StackView {
        id: view

        anchors.fill: parent
        anchors.topMargin: bar.visible ? bar.height : 0
        clip: true
        focus: true
        initialItem: stack.initialPage

        popEnter: Transition {
            Slide {
                to: 0
            }
        }
        popExit: Transition {
            Slide {
                to: stack.direction * view.width
            }
        }
        pushEnter: Transition {
            Slide {
                from: stack.direction * view.width
                to: 0
            }
        }
        pushExit: Transition {
            Slide {
                from: 0
                to: stack.besideTop
            }
        }

        onCurrentItemChanged: if (currentItem)
            currentItem.focus = true
    }
    EdgeDrag {
        id: edge

        anchors.bottom: parent.bottom
        anchors.left: parent.left
        anchors.top: view.top
        direction: stack.direction
        enabled: stack.canGoBack && !view.busy

        onDistanceChanged: if (enabled)
            stack.pullAside(distance)
        onReleased: velocity => stack.release(velocity)
    }
    Slide {
        id: wayBack

        property: "distance"
        target: edge
        to: 0
    }
    component Slide: NumberAnimation {
        duration: Motion.duration(380)
        easing.type: Easing.OutQuint
        property: "x"
    }
}

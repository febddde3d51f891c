#include "platform/views/ViewItem.h"
#include "Raster.h"
#include "platform/views/ShapeViews.h"

#include <QQuickWindow>
#include <QSignalSpy>

namespace kovamo {
namespace {

// The screens of this program's tests have two pixels to a point.
const bool dense = qputenv("QT_SCALE_FACTOR", "2");

struct Screen {
    QQuickWindow window;
    ViewItem item{window.contentItem()};

    Screen() {
        window.setColor(Qt::white);
        window.resize(100, 100);
        item.setPosition({10, 10});
        item.setSize({60, 60});
    }
    ~Screen() { SystemColors::shared().setColorScheme(ColorScheme::light); }
    Q_DISABLE_COPY_MOVE(Screen)
};

TEST(TheItem, PaintsItsViewAtTheScreensOwnResolution) {
    Screen screen;
    // A line one pixel wide, half a point, on the pixels' grid: blurred if painted in points.
    struct Hairline {
        [[nodiscard]] QPainterPath path(const QRectF& rect) const {
            return Rectangle{}.path({30, 0, 0.5, rect.height()});
        }
    };
    screen.item.setView(FilledShape{Hairline{}, Color{SystemColor::red}});
    const QImage image = screen.window.grabWindow();
    ASSERT_EQ(image.size(), QSize(200, 200));
    expectColor(image.pixelColor(79, 60), Qt::white, "before the line");
    expectColor(image.pixelColor(80, 60), light(SystemColor::red), "the line");
    expectColor(image.pixelColor(81, 60), Qt::white, "after the line");
    expectColor(image.pixelColor(80, 10), Qt::white, "above the item");
}

TEST(TheItem, PaintsAnewWhenItsViewOrTheAppearanceChanges) {
    Screen screen;
    const QSignalSpy changes(&screen.item, &ViewItem::viewChanged);
    const AnyView label = FilledShape{Rectangle{}, Color{SystemColor::label}};
    screen.item.setView(label);
    screen.item.setView(label);
    EXPECT_EQ(changes.count(), 1);
    expectColor(screen.window.grabWindow().pixelColor(80, 80), Qt::black, "the view");
    SystemColors::shared().setColorScheme(ColorScheme::dark);
    expectColor(screen.window.grabWindow().pixelColor(80, 80), Qt::white, "the dark appearance");
    screen.item.setView(FilledShape{Rectangle{}, Color{SystemColor::yellow}});
    expectColor(screen.window.grabWindow().pixelColor(80, 80),
                resolved(SystemColor::yellow, ColorScheme::dark), "another view");
}

} // namespace
} // namespace kovamo

#include "examples/gallery/Gallery.h"

#include "platform/views/Raster.h"
#include "support/Hand.h"

#include <QQmlApplicationEngine>
#include <QTest>

namespace kovamo {
namespace {

const QSize size(390, 200);

template<class T>
QList<T*> all(QQmlListProperty<T> list) {
    QList<T*> members;
    for (qsizetype i = 0; i < list.count(&list); ++i)
        members.append(list.at(&list, i));
    return members;
}

QImage picture(const Exhibit& exhibit) {
    return raster(exhibit.isCloseUp() ? exhibit.chart().plot() : exhibit.view(), size);
}

TEST(Exhibits, ShowSomethingAndFollowTheirSliders) {
    Gallery gallery;
    EXPECT_FALSE(all(gallery.exhibits()).isEmpty());
    for (Exhibit* exhibit : all(gallery.exhibits())) {
        const QImage first = picture(*exhibit);
        EXPECT_TRUE(isPainted(first, QRect(QPoint(), size))) << exhibit->title().toStdString();
        for (ExhibitParameter* parameter : all(exhibit->parameters())) {
            const double value = parameter->value();
            parameter->setValue(value < parameter->to() ? parameter->to() : parameter->from());
            EXPECT_NE(picture(*exhibit), first)
                << exhibit->title().toStdString() << ", " << parameter->name().toStdString();
            parameter->setValue(value);
        }
    }
}

TEST(TheGallerysWindow, MagnifiesUnderTheFingerAndChangesTheAppearance) {
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    failOnWarnings(engine);
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Kovamo/Gallery/GalleryWindow.qml")));
    ASSERT_EQ(engine.rootObjects().size(), 1);
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    window->resize(800, 8000);
    QCoreApplication::processEvents();
    window->grabWindow();

    const QQuickItem* magnifier = nullptr;
    (void)findItem(*window, [&](const QQuickItem& item) {
        if (QByteArray(item.metaObject()->className()).startsWith("ChartMagnifier") &&
            item.parentItem()->isVisible())
            magnifier = &item;
        return false; // the first of the list is the last that is asked
    });
    ASSERT_TRUE(magnifier);
    const auto place = [&](double x) {
        return magnifier->parentItem()->mapToScene({x, 90}).toPoint();
    };
    const auto reading = [&] { return magnifier->property("reading").value<MagnifiedReading>(); };
    QTest::mousePress(window, Qt::LeftButton, {}, place(10));
    EXPECT_TRUE(magnifier->isVisible());
    EXPECT_EQ(magnifier->x(), 0) << "kept inside of the plot";
    const QString first = reading().text;
    QTest::mouseMove(window, place(200));
    EXPECT_NE(reading().text, first);
    EXPECT_NEAR(magnifier->x() + magnifier->width() / 2, reading().position.x(), 0.5);
    QTest::mouseRelease(window, Qt::LeftButton, {}, place(200));
    EXPECT_FALSE(magnifier->isVisible());

    const QPoint appearance(window->width() - 30, 38);
    expectColor(window->grabWindow().pixelColor(4, 4), light(SystemColor::groupedBackground));
    QTest::mouseClick(window, Qt::LeftButton, {}, appearance);
    expectColor(window->grabWindow().pixelColor(4, 4), Qt::black, "dark");
    QTest::mouseClick(window, Qt::LeftButton, {}, appearance);
}

} // namespace
} // namespace kovamo

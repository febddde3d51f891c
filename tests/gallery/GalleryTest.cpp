#include "gallery/Gallery.h"

#include "platform/views/Raster.h"

#include <QQmlApplicationEngine>
#include <QQuickItem>
#include <QQuickWindow>
#include <QTest>
#include <QtQml/qqmlextensionplugin.h>

Q_IMPORT_QML_PLUGIN(Kovamo_ChartsPlugin)
Q_IMPORT_QML_PLUGIN(Kovamo_FoundationPlugin)
Q_IMPORT_QML_PLUGIN(Kovamo_GalleryPlugin)
Q_IMPORT_QML_PLUGIN(Kovamo_ViewsPlugin)

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

/// The first item of a QML type below `parent` whose own parent is visible.
QQuickItem* findItem(const QQuickItem& parent, const char* type) {
    QQuickItem* found = nullptr;
    for (QQuickItem* item : parent.childItems()) {
        const bool is = QByteArray(item->metaObject()->className()).startsWith(type);
        if (!found && parent.isVisible())
            found = is ? item : findItem(*item, type);
    }
    return found;
}

TEST(TheGallerysWindow, MagnifiesUnderTheFingerAndChangesTheAppearance) {
    QStringList warnings;
    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QObject::connect(&engine, &QQmlEngine::warnings, [&](const QList<QQmlError>& errors) {
        for (const QQmlError& error : errors)
            warnings.append(error.toString());
    });
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Kovamo/Gallery/GalleryWindow.qml")));
    ASSERT_EQ(engine.rootObjects().size(), 1);
    auto* window = qobject_cast<QQuickWindow*>(engine.rootObjects().constFirst());
    window->resize(800, 8000);
    QCoreApplication::processEvents();
    window->grabWindow();

    QQuickItem* magnifier = findItem(*window->contentItem(), "ChartMagnifier");
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
    EXPECT_EQ(warnings, QStringList());
}

} // namespace
} // namespace kovamo

#include "examples/gallery/Gallery.h"

#include "platform/views/Raster.h"

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

} // namespace
} // namespace kovamo

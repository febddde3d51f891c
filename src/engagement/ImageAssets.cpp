#include "ImageAssets.h"

#include <QFile>

namespace kovamo {

QUrl ImageAssets::url(const QString& name, bool dark, bool wide) {
    const QString folder = QStringLiteral("/qt/qml/Kovamo/Engagement/pictures/");
    const QString variants[] = {dark ? QStringLiteral("dark/") : QString(), QString()};
    const QString shapes[] = {wide ? QStringLiteral("wide/") : QString(), QString()};
    for (const QString& shape : shapes)
        for (const QString& variant : variants)
            if (const QString file = folder + variant + shape + name + QStringLiteral(".svg");
                QFile::exists(QLatin1Char(':') + file))
                return QUrl(QStringLiteral("qrc:") + file);
    return {};
}

} // namespace kovamo

#include "ImageAssets.h"

#include <QFile>

namespace kovamo {

QUrl ImageAssets::url(const QString& name, bool dark) {
    const QString folder = QStringLiteral("/qt/qml/Kovamo/Engagement/pictures/");
    const QStringList paths = {folder + (dark ? QStringLiteral("dark/") : QString()) + name,
                               folder + name};
    for (const QString& path : paths)
        if (const QString file = path + QStringLiteral(".svg");
            QFile::exists(QLatin1Char(':') + file))
            return QUrl(QStringLiteral("qrc:") + file);
    return {};
}

} // namespace kovamo

#include "Stage.h"

#include <QQmlComponent>

namespace kovamo {

Stage::Stage(const char* body, bool reducedMotion, const char* module, QObject* subject) {
    m_engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    failOnWarnings(m_engine);
    QQmlComponent component(&m_engine);
    const QString qml = QStringLiteral("import QtQuick; import Kovamo.Controls\n"
                                       "import Kovamo.Forms; import Kovamo.Desktop; import %1\n"
                                       "Item { property QtObject subject; property string log\n"
                                       "Component.onCompleted: Motion.reduced = %2\n%3\n}")
                            .arg(QLatin1String(module), QVariant(reducedMotion).toString(),
                                 QString::fromUtf8(body));
    component.setData(qml.toUtf8(), QUrl(QStringLiteral("qrc:/stage.qml")));
    m_root.reset(component.createWithInitialProperties(
        {{QStringLiteral("subject"), QVariant::fromValue(subject)}}));
    auto* root = qobject_cast<QQuickItem*>(m_root.get());
    if (root == nullptr)
        qFatal("%s", qPrintable(component.errorString()));
    m_window.resize(390, 844);
    root->setParentItem(m_window.contentItem());
    root->setSize(m_window.size());
    m_window.show();
    m_window.requestActivate();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
}

QQuickItem* Stage::item(const char* name) const {
    if (*name == '\0')
        return qobject_cast<QQuickItem*>(m_root.get());
    QQuickItem* found = findItem(
        m_window, [name](const QQuickItem& i) { return i.objectName() == QLatin1String(name); });
    if (found == nullptr)
        ADD_FAILURE() << "no item " << name;
    return found;
}

QVariant Stage::get(const char* property, const char* name) const {
    return item(name)->property(property);
}

void Stage::set(const char* property, const QVariant& value, const char* name) {
    EXPECT_TRUE(item(name)->setProperty(property, value)) << property;
}

} // namespace kovamo

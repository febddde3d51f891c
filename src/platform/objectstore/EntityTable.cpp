#include "EntityTable.h"

namespace kovamo {

namespace {

QString quoted(const QString& name) {
    return u'"' + name + u'"';
}

QString columnDefinition(const AttributeDescription& attribute) {
    const auto definition = [&](const char* format) {
        return QString::fromLatin1(format).arg(quoted(attribute.name));
    };
    switch (attribute.type) {
    case AttributeType::integer32:
        return definition("%1 INTEGER NOT NULL DEFAULT 0 "
                          "CHECK (%1 BETWEEN -2147483648 AND 2147483647)");
    case AttributeType::boolean:
        return definition("%1 INTEGER NOT NULL DEFAULT 0 CHECK (%1 IN (0, 1))");
    case AttributeType::date:
        return definition("%1 INTEGER");
    case AttributeType::string:
    case AttributeType::uuid:
        return definition("%1 TEXT");
    }
    Q_UNREACHABLE();
}

} // namespace

EntityTable::EntityTable(const EntityDescription& entity) : name(quoted(entity.name)) {
    QStringList columnDefinitions{QStringLiteral("pk INTEGER PRIMARY KEY")};
    for (const AttributeDescription& attribute : entity.attributes) {
        columns.append(quoted(attribute.name));
        columnDefinitions.append(columnDefinition(attribute));
    }
    definitions.append(u"CREATE TABLE " + name + u" (" + columnDefinitions.join(u',') +
                       u") STRICT");
    for (const std::vector<SortDescriptor>& index : entity.indexes) {
        QString indexName = entity.name;
        for (const SortDescriptor& descriptor : index)
            indexName += u'_' + descriptor.key;
        definitions.append(u"CREATE INDEX " + quoted(indexName) + u" ON " + name + u" (" +
                           sortKeys(index) + u')');
    }
    selection = u"SELECT " + columns.join(u',') + u" FROM " + name + u" WHERE pk = ?";
    everything = u"SELECT " + columns.join(u',') + u",pk FROM " + name + u" ORDER BY pk";
    insertion = u"INSERT INTO " + name + u" (" + columns.join(u',') + u",pk) VALUES (" +
                QStringLiteral("?,").repeated(columns.size()) + u"?)";
    update =
        u"UPDATE " + name + u" SET " + columns.join(QStringLiteral("=?,")) + u"=? WHERE pk = ?";
    deletion = u"DELETE FROM " + name + u" WHERE pk = ?";
}

QString sortKeys(const std::vector<SortDescriptor>& descriptors) {
    QStringList keys;
    for (const SortDescriptor& descriptor : descriptors)
        keys.append(quoted(descriptor.key) + QLatin1String(descriptor.ascending ? "" : " DESC"));
    return keys.join(u',');
}

} // namespace kovamo

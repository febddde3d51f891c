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

/// The condition that a column holds what its attribute cannot have; tables of other programs may.
QString wrongness(const AttributeDescription& attribute) {
    const QString none = attribute.isOptional ? QStringLiteral("%1 IS NOT NULL AND ") : QString();
    QString wrong;
    switch (attribute.type) {
    case AttributeType::integer32:
        wrong = QStringLiteral("(typeof(%1) <> 'integer' OR "
                               "%1 NOT BETWEEN -2147483648 AND 2147483647)");
        break;
    case AttributeType::boolean:
    case AttributeType::date:
        wrong = QStringLiteral("typeof(%1) <> 'integer'");
        break;
    case AttributeType::string:
        wrong = QStringLiteral("typeof(%1) <> 'text'");
        break;
    case AttributeType::uuid: {
        QStringList groups;
        for (const int digits : {8, 4, 4, 4, 12})
            groups.append(QStringLiteral("[0-9A-Fa-f]").repeated(digits));
        const QString form = groups.join(u'-');
        wrong = u"(typeof(%1) <> 'text' OR %1 NOT GLOB '" + form + u"' AND %1 NOT GLOB '{" + form +
                u"}')";
    }
    }
    return QString(none + wrong).arg(quoted(attribute.name));
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
    wrongValue = QStringLiteral("SELECT pk, CASE");
    for (const AttributeDescription& attribute : entity.attributes)
        wrongValue += u" WHEN " + wrongness(attribute) + u" THEN '" + attribute.name + u'\'';
    wrongValue += u" END AS wrong FROM " + name + u" WHERE wrong IS NOT NULL LIMIT 1";
    everything =
        u"SELECT " + columns.join(u',') + u",pk FROM " + name + u" WHERE pk > ? ORDER BY pk";
    several = u"SELECT " + columns.join(u',') + u",pk FROM " + name +
              u" WHERE pk IN (SELECT value FROM json_each(?))";
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

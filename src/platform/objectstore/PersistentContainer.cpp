#include "PersistentContainer.h"

#include "platform/foundation/FatalError.h"
#include "platform/objectstore/file/Soundness.h"
#include "platform/objectstore/store/Store.h"
#include "platform/objectstore/store/StoreInspection.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace kovamo {

PersistentContainer::PersistentContainer(QString name, const EntityDescription& entity)
    : m_name(std::move(name)), m_entity(entity) {}

PersistentContainer::~PersistentContainer() = default;

QString PersistentContainer::storePath() const {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u'/' + m_name +
           u'/' + m_name + u".sqlite";
}

std::optional<QString> PersistentContainer::newestCopy() const {
    return StoreCopy::newest(storePath());
}

void PersistentContainer::readAhead() const {
    kovamo::readAhead(storePath());
}

void PersistentContainer::loadPersistentStores(
    const std::function<void(const StoreError*)>& completion) {
    try {
        m_store = std::make_unique<Store>(storePath(), m_entity);
    } catch (const StoreError& error) {
        return completion(&error);
    }
    m_viewContext = std::make_unique<ManagedObjectContext>(*m_store, m_entity);
    completion(nullptr);
}

std::optional<FormerStore> PersistentContainer::formerStore() const {
    try {
        const std::optional<QString> copy = m_store->copyOfFormer();
        if (!copy)
            return {};
        constexpr qsizetype dayLength = 10;
        FormerStore former{.copyPath = *copy,
                           .day = QFileInfo(*copy).completeBaseName().last(dayLength)};
        former.records = StoreInspection(*copy, m_entity).count();
        return former.records > 0 ? std::optional(former) : std::nullopt;
    } catch (const StoreError&) {
        // A copy that cannot be read is not offered.
        return {};
    }
}

ManagedObjectContext& PersistentContainer::viewContext() const {
    if (!m_viewContext)
        fatalError(QStringLiteral("The store \"%1\" is not loaded").arg(m_name));
    return *m_viewContext;
}

} // namespace kovamo

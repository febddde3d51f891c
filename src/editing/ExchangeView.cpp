#include "ExchangeView.h"

#include "exchange/Export.h"
#include "exchange/Import.h"
#include "ledger/TransactionCheck.h"
#include "model/Transaction.h"
#include "platform/foundation/Calendar.h"
#include "platform/foundation/Formatters.h"
#include "platform/objectstore/file/KeptCopies.h"
#include "platform/objectstore/file/StoreError.h"
#include "platform/objectstore/store/Store.h"

#include <QDate>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <utility>

namespace kovamo {

namespace {

QString counted(const QString& what, qint64 count) {
    return what + u": " + numberText(count);
}

/// How many records a store holds; nothing for a file that is no store.
std::optional<qint64> countOf(const QString& storePath) {
    try {
        Store store(storePath, Transaction::entity(), Store::Access::read);
        return qint64(store.count(Transaction::fetchRequest()));
    } catch (const StoreError&) {
        return std::nullopt;
    }
}

/// A copy's name as the user writes days, and whether it is a store that was set aside: the same
/// day can have both, and several of those.
QString dayOf(const QString& name) {
    static const QRegularExpression pattern(
        QStringLiteral("^(set-aside-)?(\\d{4}-\\d\\d-\\d\\d)(?:-(\\d+))?$"));
    const QRegularExpressionMatch match = pattern.match(name);
    const QDate date = QDate::fromString(match.captured(2), Qt::ISODate);
    if (!date.isValid())
        return name;
    constexpr int noon = 12;
    const QString day =
        localizedDateText(Instant(std::chrono::milliseconds(
                              date.startOfDay().addSecs(noon * 3600).toMSecsSinceEpoch())),
                          QStringLiteral("yMMMMd"));
    if (!match.hasCaptured(1))
        return day;
    const QString number = match.captured(3);
    return ExchangeView::tr("Set aside on %1").arg(day) +
           (number.isEmpty() ? number : u" (" + numberText(number.toInt()) + u')');
}

ImportOptions optionsFor(const QString& path, const std::atomic<bool>& isStopped) {
    ImportOptions options;
    options.format = formatOfFile(path).value_or(ExchangeFormat::csv);
    // A command takes in what no screen can show, too; here the screens would end over it.
    options.objection = [check = TransactionCheck()](std::span<const Value> values) {
        return check.faultsOf(values).join(QStringLiteral("; "));
    };
    options.progress = [&isStopped](qint64) { return !isStopped; };
    return options;
}

} // namespace

ExchangeView::ExchangeView(QString storePath, QObject* parent)
    : QObject(parent), m_storePath(std::move(storePath)) {}

ExchangeView::~ExchangeView() {
    stop();
}

QString ExchangeView::suggestedName() {
    return u"Kovamo " + dayText(Clock::now()) + u".csv";
}

void ExchangeView::stop() {
    ++m_run;
    m_isStopped = true;
    if (m_worker)
        m_worker->wait();
    m_worker.reset();
    m_isStopped = false;
}

void ExchangeView::show(Page page) {
    m_page = std::move(page);
    m_isPresented = true;
    Q_EMIT changed();
}

void ExchangeView::run(const QString& title, const std::function<Page()>& work) {
    stop();
    show({.title = title, .lines = {tr("One moment…")}});
    m_worker.reset(QThread::create([this, title, work, number = m_run] {
        Page page;
        try {
            page = work();
        } catch (const StoreError& error) {
            page = {.title = title, .lines = {error.description()}};
        }
        // Qt drops the call if this object is destroyed first.
        QMetaObject::invokeMethod(
            this,
            [this, number, page = std::move(page)] {
                if (number != m_run)
                    return; // dismissed meanwhile
                stop();
                show(page);
            },
            Qt::QueuedConnection);
    }));
    m_worker->start();
    Q_EMIT changed();
}

void ExchangeView::exportTo(const QString& path, bool mayReplace) {
    if (!mayReplace && QFileInfo::exists(path)) {
        stop();
        show({.title = tr("Export"),
              .lines = {QFileInfo(path).fileName(), tr("There is a file of this name already.")},
              .details = {},
              .choices = {},
              .action = tr("Replace"),
              .next = {[=, this] { exportTo(path, true); }}});
        return;
    }
    run(tr("Export"), [this, path]() -> Page {
        const auto format = formatOfFile(path).value_or(ExchangeFormat::csv);
        Store store(m_storePath, Transaction::entity(), Store::Access::read);
        QSaveFile file(path);
        // A sandbox lets the chosen file be written, and none be made beside it.
        file.setDirectWriteFallback(true);
        const auto count =
            file.open(QSaveFile::WriteOnly)
                ? exportRecords(store,
                                format == ExchangeFormat::json ? format : ExchangeFormat::csv, file,
                                [this](auto) { return !m_isStopped.load(); })
                : std::nullopt;
        if (m_isStopped)
            return {};
        if (!count || !file.commit())
            return {.title = tr("Export"), .lines = {path, file.errorString()}};
        return {.title = tr("Exported"),
                .lines = {counted(tr("Transactions"), *count), QFileInfo(path).fileName()}};
    });
}

ExchangeView::Page ExchangeView::planPage(const QString& path) {
    Page page{.title = tr("Import"), .lines = {QFileInfo(path).fileName()}};
    QFile file(path);
    if (!file.open(QFile::ReadOnly)) {
        page.lines.append(file.errorString());
        return page;
    }
    ImportOptions options = optionsFor(path, m_isStopped);
    options.skipBad = true;
    Store store(m_storePath, Transaction::entity(), Store::Access::read);
    const ImportReport plan = planImport(store, file, options);
    if (!plan.isRefused) {
        page.lines.append(counted(tr("New"), plan.added));
        page.lines.append(counted(tr("Changed"), plan.changed));
        page.lines.append(counted(tr("Already here"), plan.same + plan.older));
    }
    if (plan.conflictCount > 0)
        page.lines.append(counted(tr("Different here, kept as they are"), plan.conflictCount));
    if (plan.rounded > 0)
        page.lines.append(counted(tr("Amounts to be rounded"), plan.rounded));
    if (plan.faultCount > 0)
        page.lines.append(counted(tr("Lines that cannot be read"), plan.faultCount));
    for (const LineFault& fault : plan.faults)
        page.details.append(tr("Line %1: %2").arg(numberText(fault.line), fault.text));
    if (!plan.isRefused && plan.added + plan.changed > 0) {
        page.action = tr("Import");
        page.next = {[this, path] { import(path); }};
    }
    return page;
}

void ExchangeView::importFrom(const QString& path) {
    run(tr("Import"), [this, path] { return planPage(path); });
}

void ExchangeView::import(const QString& path) {
    run(tr("Import"), [this, path]() -> Page {
        QFile file(path);
        if (!file.open(QFile::ReadOnly))
            return {.title = tr("Import"), .lines = {file.errorString()}};
        ImportOptions options = optionsFor(path, m_isStopped);
        options.skipBad = true;
        Store store(m_storePath, Transaction::entity());
        const ImportReport report = importRecords(store, file, options);
        if (report.isRefused)
            return {.title = tr("Import"), .lines = {tr("Nothing was imported.")}};
        return {
            .title = tr("Imported"),
            .lines = {counted(tr("New"), report.added), counted(tr("Changed"), report.changed)}};
    });
}

ExchangeView::Page ExchangeView::copiesPage() {
    Page page{.title = tr("Go Back to a Copy")};
    for (const KeptCopy& copy : keptCopies(m_storePath)) {
        const auto count = countOf(copy.path);
        if (!count)
            continue;
        const QString day = dayOf(copy.name);
        // A line breaks before the count, not in it.
        page.choices.append(day + u" · " +
                            counted(tr("Transactions"), *count).replace(u' ', QChar::Nbsp));
        page.next.push_back([this, path = copy.path, day] {
            run(tr("Go Back to a Copy"), [=, this] { return copyPage(path, day); });
        });
    }
    if (page.choices.isEmpty())
        page.lines.append(tr("No copy is kept yet. The first one is made before the first change "
                             "of a day."));
    return page;
}

ExchangeView::Page ExchangeView::copyPage(const QString& copyPath, const QString& day) {
    return {.title = day,
            .lines = {counted(tr("Transactions in the copy"), countOf(copyPath).value_or(0)),
                      counted(tr("Transactions now"), countOf(m_storePath).value_or(0)),
                      tr("What is stored now is set aside; you can go back to it as to a copy.")},
            .details = {},
            .choices = {},
            .action = tr("Go Back"),
            .next = {[=, this] { goBack(copyPath, day); }}};
}

void ExchangeView::showCopies() {
    run(tr("Go Back to a Copy"), [this] { return copiesPage(); });
}

void ExchangeView::goBack(const QString& copyPath, const QString& day) {
    run(tr("Go Back to a Copy"), [=, this]() -> Page {
        // One that is damaged or from a newer version is refused here.
        static_cast<void>(Store(copyPath, Transaction::entity(), Store::Access::read));
        goBackTo(copyPath, m_storePath);
        return {.title = day,
                .lines = {counted(tr("Transactions now"), countOf(m_storePath).value_or(0))}};
    });
}

void ExchangeView::choose(int index) {
    if (index >= 0 && index < int(m_page.next.size()))
        std::exchange(m_page.next, {})[std::size_t(index)]();
}

void ExchangeView::proceed() {
    if (!m_page.action.isEmpty())
        choose(0);
}

void ExchangeView::dismiss() {
    stop();
    m_isPresented = false;
    Q_EMIT changed();
}

} // namespace kovamo

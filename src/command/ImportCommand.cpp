#include "Call.h"
#include "Commands.h"
#include "OpenStore.h"
#include "Output.h"
#include "Progress.h"
#include "exchange/Import.h"
#include "ledger/TransactionCheck.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <cstdio>
#include <unistd.h>

namespace kovamo {

namespace {

const QStringList formats{QStringLiteral("csv"), QStringLiteral("json")};
const QStringList columnMeanings{QStringLiteral("date"), QStringLiteral("title"),
                                 QStringLiteral("amount"), QStringLiteral("debit"),
                                 QStringLiteral("credit")};

/// The file that a call names, or standard input.
class Input {
  public:
    explicit Input(const QString& path) : m_name(path) {
        const bool isStandard = path.isEmpty() || path == u"-";
        if (isStandard)
            m_name = QStringLiteral("Standard input");
        else
            m_file.setFileName(path);
        if (isStandard ? !m_file.open(STDIN_FILENO, QIODevice::ReadOnly)
                       : !m_file.open(QIODevice::ReadOnly))
            throw CommandFailure{m_name + u" cannot be read: " + m_file.errorString()};
    }

    [[nodiscard]] const QString& name() const { return m_name; }
    [[nodiscard]] QFile& file() { return m_file; }
    /// Whether what it holds looks like one JSON object a line.
    [[nodiscard]] bool looksLikeJson() { return m_file.peek(1) == "{"; }

  private:
    QString m_name;
    QFile m_file;
};

ExchangeFormat formatOf(const Call& call, Input& input) {
    if (call.isSet("format"))
        return *formatNamed(call.choice("format", formats));
    const auto bySuffix = formatOfFile(call.operand());
    return bySuffix                ? *bySuffix
           : input.looksLikeJson() ? ExchangeFormat::json
                                   : ExchangeFormat::csv;
}

QMap<QString, QString> columnsOf(const Call& call) {
    QMap<QString, QString> columns;
    for (const QString& pair :
         call.value("columns").value_or(QString()).split(u',', Qt::SkipEmptyParts)) {
        const QString meaning = pair.section(u'=', 0, 0);
        const QString word = pair.section(u'=', 1);
        if (!columnMeanings.contains(meaning) || word.isEmpty())
            throw CommandFailure{QStringLiteral("A column is given as %1=WORD, not \"%2\"")
                                     .arg(columnMeanings.join(u'|'), pair),
                                 ExitStatus::wrongCall};
        columns.insert(meaning, word);
    }
    return columns;
}

ImportOptions optionsOf(const Call& call, Input& input) {
    ImportOptions options{.format = formatOf(call, input),
                          .skipBad = call.isSet("skip-bad"),
                          .columns = columnsOf(call),
                          .dateFormat = call.value("date-format").value_or(QString())};
    if (const auto emoji = call.value("emoji"))
        options.emoji = *emoji;
    return options;
}

/// Prints the lines that were noted, and how many more there are, to standard error.
void report(const Input& input, const std::vector<LineFault>& faults, qint64 count) {
    for (const LineFault& fault : faults)
        std::fprintf(stderr, "%s:%lld: %s\n", qUtf8Printable(input.name()),
                     static_cast<long long>(fault.line), qUtf8Printable(inOneLine(fault.text)));
    if (const auto more = count - std::ssize(faults); more > 0)
        std::fprintf(stderr, "%s: and %lld more\n", qUtf8Printable(input.name()),
                     static_cast<long long>(more));
}

QString summaryOf(const ImportReport& report) {
    QString text = QStringLiteral("%1 new, %2 changed, %3 already here")
                       .arg(report.added)
                       .arg(report.changed)
                       .arg(report.same);
    if (report.older > 0)
        text += QStringLiteral(", %1 older than here").arg(report.older);
    if (report.conflictCount > 0)
        text += QStringLiteral(", %1 different here").arg(report.conflictCount);
    if (report.faultCount > 0)
        text += QStringLiteral(", %1 that cannot be read").arg(report.faultCount);
    text += u'\n';
    if (report.rounded > 0)
        text += QStringLiteral("%1 %2 rounded, by %3 in all\n")
                    .arg(report.rounded)
                    .arg(QLatin1String(report.rounded == 1 ? "amount was" : "amounts were"))
                    .arg(static_cast<double>(report.roundedSum) / 100, 0, 'f', 2);
    return text;
}

/// What the import does to the store, or would do.
ImportReport take(const Call& call, Input& input, const ImportOptions& options) {
    const QString path = call.storePath();
    if (!call.isSet("dry-run")) {
        OpenStore opened(path, Store::Access::readAndWrite);
        return importRecords(opened.store, input.file(), options);
    }
    if (QFileInfo::exists(path)) {
        OpenStore opened(path, Store::Access::read);
        return planImport(opened.store, input.file(), options);
    }
    const QTemporaryDir folder;
    OpenStore empty(folder.filePath(QStringLiteral("empty.sqlite")), Store::Access::readAndWrite);
    return planImport(empty.store, input.file(), options);
}

ExitStatus run(const Call& call) {
    Input input(call.operand());
    ImportOptions options = optionsOf(call, input);
    qint64 unshown = 0;
    // What no screen can show comes in, too: each export can be imported as it is.
    options.objection = [&unshown, check = TransactionCheck()](std::span<const Value> values) {
        unshown += check.faultsOf(values).isEmpty() ? 0 : 1;
        return QString();
    };
    ImportReport result;
    {
        Progress progress("Importing", input.file().isSequential() ? 0 : input.file().size());
        options.progress = [&](qint64 bytes) {
            progress.show(bytes);
            return true;
        };
        result = take(call, input, options);
    }
    report(input, result.conflicts, result.conflictCount);
    report(input, result.faults, result.faultCount);
    if (result.isRefused)
        throw CommandFailure{QStringLiteral("Nothing was imported.")};
    print(summaryOf(result));
    if (unshown > 0)
        std::fprintf(stderr,
                     "No screen can show %lld of these records; kovamo check names those that are "
                     "stored.\n",
                     static_cast<long long>(unshown));
    return ExitStatus::done;
}

} // namespace

Command importCommand() {
    const auto option = [](const char* name, const char* meaning, const char* value = "") {
        return QCommandLineOption(QString::fromLatin1(name), QString::fromUtf8(meaning),
                                  QString::fromUtf8(value));
    };
    return {
        .name = QStringLiteral("import"),
        .summary = QStringLiteral("Import the records of a file; none twice, and none is lost."),
        .options = {formatOption(formats),
                    option("dry-run", "Tell what would change, and change nothing."),
                    option("skip-bad", "Skip lines that cannot be read."),
                    option("columns",
                           "What a statement's header calls its date, title, amount, debit and "
                           "credit.",
                           "date=Buchungstag,…"),
                    option("date-format", "How a statement writes its dates.", "dd.MM.yyyy"),
                    option("emoji", "The emoji of a statement's records.", "🏦")},
        .operand = Operand{QStringLiteral("FILE"),
                           QStringLiteral("The file; standard input where it is - or missing.")},
        .run = run};
}

} // namespace kovamo

#include "Options.h"

#include "command/CommandLine.h"

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QFileInfo>
#include <QUrl>

namespace kovamo {

namespace {

constexpr const char* programName = "kovamo";

/// The options as Qt parses and explains them.
struct CommandLine {
    CommandLine() {
        parser.setApplicationDescription(
            QStringLiteral("Will you be in the black this month, in three months, in a year?"));
        parser.addOptions(
            {newTransaction, allTransactions, demo, appearance, pictures, version, help});
        parser.addPositionalArgument(
            QStringLiteral("FILE"),
            QStringLiteral("A file of records or a bank's statement, as CSV or JSON: shows what it "
                           "would bring, in the app that runs if one does."),
            QStringLiteral("[FILE]"));
    }

    QCommandLineOption newTransaction{
        QString::fromLatin1(wordOf(StartAction::newTransaction)),
        QStringLiteral("Open the form for a new transaction, in the app that runs if one does.")};
    QCommandLineOption allTransactions{
        QString::fromLatin1(wordOf(StartAction::allTransactions)),
        QStringLiteral("Open the list of all transactions, in the app that runs if one does.")};
    QCommandLineOption demo{QStringLiteral("demo"),
                            QStringLiteral("Show sample data in a store that is thrown away.")};
    QCommandLineOption appearance{
        QStringLiteral("appearance"),
        QStringLiteral("Use this appearance in place of the desktop's: light or dark."),
        QStringLiteral("light|dark")};
    QCommandLineOption pictures{
        QStringLiteral("pictures"),
        QStringLiteral("Draw every screen with sample data into this folder, without a display."),
        QStringLiteral("folder")};
    QCommandLineOption version{{QStringLiteral("v"), QStringLiteral("version")},
                               QStringLiteral("Print the version.")};
    QCommandLineOption help{{QStringLiteral("h"), QStringLiteral("help")},
                            QStringLiteral("Print this help.")};
    QCommandLineParser parser;
};

std::optional<ColorScheme> scheme(const QString& name) {
    if (name == u"light")
        return ColorScheme::light;
    if (name == u"dark")
        return ColorScheme::dark;
    return std::nullopt;
}

/// The absolute path of a file that is named by its path or, as some launchers do, by its address.
QString pathNamed(const QString& operand) {
    const bool isAddress = operand.startsWith(u"file://");
    return QFileInfo(isAddress ? QUrl(operand).toLocalFile() : operand).absoluteFilePath();
}

} // namespace

Options parsedOptions(const QStringList& arguments) {
    CommandLine line;
    Options options;
    if (!line.parser.parse(QStringList(QString::fromLatin1(programName)) + arguments)) {
        options.error = line.parser.errorText();
        return options;
    }
    if (line.parser.isSet(line.allTransactions))
        options.start.action = StartAction::allTransactions;
    if (line.parser.isSet(line.newTransaction))
        options.start.action = StartAction::newTransaction;
    options.isDemo = line.parser.isSet(line.demo);
    options.wantsVersion = line.parser.isSet(line.version);
    options.wantsHelp = line.parser.isSet(line.help);
    if (line.parser.isSet(line.pictures))
        options.pictures = line.parser.value(line.pictures);
    if (line.parser.isSet(line.appearance)) {
        options.appearance = scheme(line.parser.value(line.appearance));
        if (!options.appearance)
            options.error = QStringLiteral("The appearance is light or dark.");
    }
    const QStringList operands = line.parser.positionalArguments();
    if (operands.size() > 1)
        options.error = u"Not understood: " + operands.mid(1).join(u' ');
    if (operands.isEmpty())
        return options;
    options.start.file = pathNamed(operands.first());
    if (!QFileInfo(options.start.file).isFile())
        options.error = u"Neither a command nor a file: " + operands.first();
    return options;
}

QString helpText() {
    // Qt takes the program's name from the application that runs.
    QByteArray name(programName);
    char* arguments[] = {name.data()};
    int count = 1;
    const QCoreApplication application(count, arguments);
    return CommandLine().parser.helpText() + u"\nWithout a display:\n" + commandsText() +
           u"\nkovamo COMMAND --help tells more of each.";
}

} // namespace kovamo

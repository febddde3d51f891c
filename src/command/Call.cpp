#include "Call.h"

#include "model/Transaction.h"
#include "platform/objectstore/PersistentContainer.h"

#include <QCoreApplication>

namespace kovamo {

namespace {

const QString frameName = QStringLiteral("frame");
const QString formatName = QStringLiteral("format");
const QString storeName = QStringLiteral("store");
const QString helpName = QStringLiteral("help");

const QStringList& frameWords() {
    static const QStringList words = [] {
        QStringList list;
        for (const NamedTimeFrame& frame : namedTimeFrames)
            list.append(QString::fromLatin1(frame.word));
        return list;
    }();
    return words;
}

[[noreturn]] void refuse(const QString& message) {
    throw CommandFailure{message, ExitStatus::wrongCall};
}

} // namespace

QCommandLineOption frameOption(const QString& meaning) {
    return {frameName, meaning, frameWords().join(u'|')};
}

QCommandLineOption formatOption(const QStringList& formats) {
    return {formatName, u"The format; " + formats.first() + u" by default.", formats.join(u'|')};
}

Call::Call(const Command& command, const QStringList& arguments) : m_command(command) {
    m_parser.setApplicationDescription(command.summary);
    for (const QCommandLineOption& option : command.options)
        m_parser.addOption(option);
    m_parser.addOptions({{storeName, QStringLiteral("Work on this store, not on your own."),
                          QStringLiteral("FILE")},
                         {{QStringLiteral("h"), helpName}, QStringLiteral("Print this help.")}});
    if (const auto& operand = command.operand)
        m_parser.addPositionalArgument(operand->name, operand->description,
                                       operand->isRequired ? operand->name
                                                           : u'[' + operand->name + u']');
    if (!m_parser.parse(QStringList(command.name) + arguments))
        refuse(m_parser.errorText());
    const QStringList operands = m_parser.positionalArguments();
    const qsizetype most = command.operand ? 1 : 0;
    if (operands.size() > most)
        refuse(u"Not understood: " + operands.mid(most).join(u' '));
    if (!wantsHelp() && command.operand && command.operand->isRequired && operands.isEmpty())
        refuse(command.operand->name + u" is missing");
}

bool Call::wantsHelp() const {
    return m_parser.isSet(helpName);
}

QString Call::help() const {
    // Qt takes the program's name from the application that runs.
    QByteArray name = "kovamo " + m_command.name.toUtf8();
    char* arguments[] = {name.data()};
    int count = 1;
    const QCoreApplication application(count, arguments);
    return m_parser.helpText();
}

bool Call::isSet(const char* option) const {
    return m_parser.isSet(QString::fromLatin1(option));
}

std::optional<QString> Call::value(const char* option) const {
    return isSet(option) ? std::optional(m_parser.value(QString::fromLatin1(option)))
                         : std::nullopt;
}

QString Call::choice(const char* option, const QStringList& choices) const {
    const QString chosen = value(option).value_or(choices.first());
    if (!choices.contains(chosen))
        refuse(QStringLiteral("The %1 is %2 or %3, not \"%4\"")
                   .arg(QLatin1String(option), choices.first(choices.size() - 1).join(u", "),
                        choices.last(), chosen));
    return chosen;
}

std::optional<TimeFrame> Call::frame() const {
    if (!m_parser.isSet(frameName))
        return std::nullopt;
    return namedTimeFrames[frameWords().indexOf(choice("frame", frameWords()))].value;
}

QString Call::operand() const {
    return m_parser.positionalArguments().value(0);
}

QString Call::storePath() const {
    return value("store").value_or(
        PersistentContainer(QStringLiteral("Kovamo"), Transaction::entity()).storePath());
}

} // namespace kovamo

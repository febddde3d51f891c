#include "EmojiCatalogue.h"

#include <QFile>
#include <QHash>
#include <QSet>
#include <algorithm>

namespace kovamo {

namespace {

QStringList wordsOf(const QString& text) {
    QString blanks = text.toLower();
    for (QChar& character : blanks)
        if (!character.isLetterOrNumber())
            character = u' ';
    return blanks.split(u' ', Qt::SkipEmptyParts);
}

/// An emoji without its skin tones and the mark that it is to be drawn in colour.
QString plain(const QString& emoji) {
    QString plain;
    for (const uint character : emoji.toUcs4())
        if (character != 0xFE0F && (character < 0x1F3FB || character > 0x1F3FF))
            plain += QString::fromUcs4(reinterpret_cast<const char32_t*>(&character), 1);
    return plain;
}

QList<EmojiCategory> readCategories() {
    QFile file(QStringLiteral(":/qt/qml/Kovamo/Emoji/emoji.txt"));
    if (!file.open(QIODevice::ReadOnly))
        return {};
    QList<EmojiCategory> categories;
    for (const QString& line : QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)) {
        const QStringList parts = line.split(u'\t');
        if (line.startsWith(u"# "))
            categories.append({parts.at(0).mid(2), parts.at(1), {}});
        else
            categories.last().emoji.append(
                {parts.at(0), parts.at(1), wordsOf(parts.mid(1).join(u' '))});
    }
    return categories;
}

} // namespace

const QList<EmojiCategory>& emojiCategories() {
    static const QList<EmojiCategory> categories = readCategories();
    return categories;
}

QString emojiName(const QString& emoji) {
    static const QHash<QString, QString> names = [] {
        QHash<QString, QString> all;
        for (const EmojiCategory& category : emojiCategories())
            for (const Emoji& offered : category.emoji)
                all.insert(plain(offered.text), offered.name);
        return all;
    }();
    return names.value(plain(emoji));
}

QList<Emoji> foundEmoji(const QString& query) {
    const QStringList wanted = wordsOf(query);
    const auto fits = [&wanted](const Emoji& emoji) {
        return std::all_of(wanted.begin(), wanted.end(), [&emoji](const QString& beginning) {
            return std::any_of(emoji.words.begin(), emoji.words.end(),
                               [&](const QString& word) { return word.startsWith(beginning); });
        });
    };
    const auto hasAll = [&wanted](const Emoji& emoji) {
        return std::all_of(wanted.begin(), wanted.end(),
                           [&emoji](const QString& word) { return emoji.words.contains(word); });
    };
    QList<Emoji> found;
    QSet<QString> seen;
    for (const EmojiCategory& category : emojiCategories())
        for (const Emoji& emoji : category.emoji)
            if (fits(emoji) && !seen.contains(emoji.text)) {
                seen.insert(emoji.text);
                found.append(emoji);
            }
    std::stable_partition(found.begin(), found.end(), hasAll);
    return found;
}

} // namespace kovamo

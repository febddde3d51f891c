#pragma once

#include <QList>
#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// A piece of text that is drawn as one picture.
struct Emoji {
    QString text;
    /// What a screen reader says, in Unicode's words: "shopping cart".
    QString name;
    /// What it is found by, in lower case.
    QStringList words;
};

/// A category of emoji.
struct EmojiCategory {
    Q_GADGET
    QML_VALUE_TYPE(emojiCategory)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString symbol MEMBER symbol)

  public:
    QString title;
    /// The emoji that stands for the category.
    QString symbol;
    QList<Emoji> emoji;
};

/// The emoji to choose from, in their order: what money is spent on first, then Unicode's groups.
[[nodiscard]] const QList<EmojiCategory>& emojiCategories();

/// What `emoji` is called in Unicode's words, its skin tones aside; empty for none that the panel
/// offers.
[[nodiscard]] QString emojiName(const QString& emoji);

/// The emoji found by `query`, each once: every word of the query begins one of its own words.
/// Those that have the query's very words stand first.
[[nodiscard]] QList<Emoji> foundEmoji(const QString& query);

} // namespace kovamo

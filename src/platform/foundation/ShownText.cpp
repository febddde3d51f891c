#include "ShownText.h"

#include <QTextBoundaryFinder>
#include <algorithm>

namespace kovamo {

namespace {

bool breaksLine(QChar character) {
    return character == u'\n' || character == u'\r' || character == QChar::LineSeparator ||
           character == QChar::ParagraphSeparator;
}

/// Where to cut a text that is longer: behind a whole character as the user sees it, where one
/// ends.
qsizetype cut(const QString& text, qsizetype longest) {
    QTextBoundaryFinder characters(QTextBoundaryFinder::Grapheme, text);
    characters.setPosition(longest);
    const qsizetype end = characters.isAtBoundary() ? longest : characters.toPreviousBoundary();
    return end > 0 ? end : longest - text.at(longest - 1).isHighSurrogate();
}

} // namespace

QString shownText(const QString& text, qsizetype longest) {
    QString shown = text;
    if (text.size() > longest) {
        // With both halves of the character behind the cut: it may belong to the one before.
        shown = text.first(std::min(longest + 2, text.size()));
        shown.truncate(cut(shown, longest));
        shown += u'…';
    }
    std::ranges::replace_if(shown, breaksLine, QChar(u' '));
    return shown;
}

} // namespace kovamo

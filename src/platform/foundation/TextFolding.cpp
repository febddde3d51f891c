#include "TextFolding.h"

#include "FatalError.h"

#include <algorithm>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/uscript.h>

namespace kovamo {

namespace {

/// Letters that Unicode does not decompose, and that people type as others.
QStringView plainForm(UChar32 character) {
    switch (character) {
    case U'ø':
        return u"o";
    case U'đ':
    case U'ð':
        return u"d";
    case U'ł':
        return u"l";
    case U'ħ':
        return u"h";
    case U'ŧ':
        return u"t";
    case U'ı':
        return u"i";
    case U'æ':
        return u"ae";
    case U'œ':
        return u"oe";
    case U'þ':
        return u"th";
    case U'ى':
    case U'ی':
        return u"ي";
    case U'ک':
        return u"ك";
    case U'ة':
        return u"ه";
    default:
        return {};
    }
}

/// Whether a character is laid over a letter that is the same letter without it. The vowel signs
/// of Indic and Thai script and the voicing of kana are marks, too, but make another letter.
bool isAccent(UChar32 character) {
    constexpr UChar32 tatweel = 0x640, voicing = 0x3099, halfVoicing = 0x309A;
    if (character == tatweel)
        return true;
    if (u_charType(character) != U_NON_SPACING_MARK || character == voicing ||
        character == halfVoicing)
        return false;
    UErrorCode status = U_ZERO_ERROR;
    const UScriptCode script = uscript_getScript(character, &status);
    return script == USCRIPT_INHERITED || script == USCRIPT_HEBREW || script == USCRIPT_ARABIC;
}

icu::UnicodeString decomposed(const QString& text) {
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* folding = icu::Normalizer2::getNFKCCasefoldInstance(status);
    const icu::Normalizer2* decomposing = icu::Normalizer2::getNFDInstance(status);
    if (U_FAILURE(status))
        fatalError(QStringLiteral("No case folding: %1").arg(QLatin1String(u_errorName(status))));
    const icu::UnicodeString whole(reinterpret_cast<const char16_t*>(text.utf16()),
                                   static_cast<int32_t>(text.size()));
    return decomposing->normalize(folding->normalize(whole, status), status);
}

} // namespace

QString folded(const QString& text) {
    if (std::ranges::all_of(text, [](QChar character) { return character < QChar(0x80); }))
        return text.toLower();
    const icu::UnicodeString characters = decomposed(text);
    QString folded;
    folded.reserve(characters.length());
    for (int32_t i = 0; i < characters.length(); i = characters.moveIndex32(i, 1)) {
        const UChar32 character = characters.char32At(i);
        if (isAccent(character))
            continue;
        if (const int digit = u_charDigitValue(character); digit >= 0)
            folded += QChar(u'0' + digit);
        else if (const QStringView plain = plainForm(character); !plain.isEmpty())
            folded += plain;
        else
            folded += QString::fromUcs4(reinterpret_cast<const char32_t*>(&character), 1);
    }
    return folded;
}

} // namespace kovamo

#include "StatementColumns.h"

#include <QHash>
#include <QStringList>
#include <QUtf8StringView>
#include <unicode/unistr.h>

namespace kovamo {

namespace {

/// What statements and other trackers call their columns, the more telling word first: English,
/// German, French, Spanish, Portuguese, Italian, Dutch, Swedish, Danish and Norwegian, Finnish,
/// Polish, Czech, Turkish, Russian, Ukrainian, Greek, Arabic, Hebrew, Chinese, Japanese, Korean.
constexpr const char16_t* dateWords =
    u"date|booking date|transaction date|posting date|posted date|completed date|started date|"
    u"value date|datum|buchungstag|buchungsdatum|buchung|wertstellung|valutadatum|valuta|"
    u"date opération|date de l'opération|date operation|date de valeur|date comptable|fecha|"
    u"fecha operación|fecha de operación|fecha valor|data|data lançamento|data mov.|data valor|"
    u"data operazione|data contabile|boekdatum|transactiedatum|bokföringsdag|bokföringsdatum|"
    u"transaktionsdag|dato|bogføringsdato|bokføringsdato|päivämäärä|kirjauspäivä|data operacji|"
    u"data transakcji|data księgowania|datum zaúčtování|datum provedení|tarih|işlem tarihi|дата|"
    u"дата операции|дата "
    u"операції|ημερομηνία|التاريخ|تاريخ|תאריך|日期|交易日期|交易时间|交易時間|日付|取引日|"
    u"お取引日|날짜|거래일|거래일시";
constexpr const char16_t* titleWords =
    u"title|payee|payer|merchant|counterparty|name|beneficiary / originator|description|details|"
    u"narrative|memo|note|notes|comment|reference|titel|beguenstigter/zahlungspflichtiger|"
    u"begünstigter/zahlungspflichtiger|auftraggeber/empfänger|auftraggeber / begünstigter|"
    u"zahlungsempfänger*in|name zahlungsbeteiligter|empfänger|auftraggeber|beschreibung|"
    u"verwendungszweck|buchungstext|libellé|libelle|bénéficiaire|tiers|concepto|descripción|"
    u"beneficiario|descrição|descricao|histórico|descrizione|causale|controparte|"
    u"naam / omschrijving|naam tegenpartij|omschrijving|mededelingen|beskrivning|mottagare|text|"
    u"tekst|beskrivelse|forklaring|saaja/maksaja|saaja|selite|viesti|opis|opis operacji|odbiorca|"
    u"tytuł|název protiúčtu|popis|zpráva pro příjemce|açıklama|описание|назначение платежа|"
    u"контрагент|опис|призначення платежу|περιγραφή|αιτιολογία|الوصف|البيان|תיאור|פרטים|描述|摘要|"
    u"交易对方|商品|备注|内容|摘要内容|お取引内容|メモ|내용|적요|기재내용";
constexpr const char16_t* amountWords =
    u"amount|transaction amount|value|sum|betrag|umsatz|montant|somme|importe|cantidad|monto|valor|"
    u"quantia|montante|importo|bedrag|belopp|beløb|beløp|määrä|summa|kwota|kwota operacji|"
    u"kwota transakcji|částka|objem|tutar|işlem tutarı|сумма|сумма операции|сума|сума "
    u"операції|ποσό|"
    u"المبلغ|סכום|金额|金額|交易金额|取引金額|금액|거래금액";
constexpr const char16_t* debitWords =
    u"debit|debit amount|withdrawal|withdrawals|money out|paid out|out|soll|belastung|ausgabe|"
    u"ausgaben|débit|cargo|cargos|débito|debito|uscite|addebito|dare|af|uttag|ut|ut fra konto|"
    u"panot ulos|obciążenia|wydatki|borç|gider|расход|дебет|витрати|χρέωση|مدين|חובה|支出|出金|"
    u"お支払金額|お引出し|출금|출금액";
constexpr const char16_t* creditWords =
    u"credit|credit amount|deposit|deposits|money in|paid in|in|haben|gutschrift|einnahme|"
    u"einnahmen|crédit|abono|abonos|crédito|credito|entrate|accredito|avere|bij|insättning|"
    u"inn på konto|panot|uznania|wpływy|alacak|gelir|приход|кредит|надходження|πίστωση|دائن|זכות|"
    u"收入|入金|お預入れ|お預り金額|입금|입금액";
constexpr const char16_t* kindWords =
    u"kind|type|transaction type|income/expense|debit/credit|credit debit indicator|cr/dr|dr/cr|"
    u"art|typ|soll/haben|umsatzart|sens|type d'opération|tipo|af "
    u"bij|af/bij|tür|тип|类型|收/支|收支|"
    u"種類|구분";
constexpr const char16_t* emojiWords = u"emoji|icon|symbol";
constexpr const char16_t* earningWords =
    u"earning|income|credit|cr|c|in|deposit|einnahme|haben|gutschrift|h|revenu|crédit|ingreso|"
    u"abono|receita|crédito|entrata|accredito|bij|inkomst|indtægt|inntekt|tulo|przychód|příjem|"
    u"gelir|доход|дохід|دخل|הכנסה|收入|収入|수입";
constexpr const char16_t* spendingWords =
    u"spending|expense|debit|dr|d|out|withdrawal|ausgabe|soll|lastschrift|s|dépense|débit|gasto|"
    u"cargo|despesa|débito|uscita|addebito|af|utgift|udgift|meno|wydatek|výdaj|gider|расход|"
    u"витрата|"
    u"مصروف|הוצאה|支出|지출";

/// A header's word without what goes with it: "Betrag (EUR)" and " betrag: " are "betrag".
QString bare(QString word) {
    if (const qsizetype at = word.indexOf(u'('); at > 0)
        word.truncate(at);
    word = word.simplified().toCaseFolded();
    while (word.endsWith(u':') || word.endsWith(u'*'))
        word.chop(1);
    for (const char* unit : {" eur", " usd", " gbp", " chf", " in eur", " in €", " €"})
        if (word.endsWith(QString::fromUtf8(unit)))
            word.chop(QString::fromUtf8(unit).size());
    return word.trimmed();
}

QStringList wordsOf(const char16_t* words) {
    return QString::fromUtf16(words).split(u'|');
}

/// The numbers of the fields that are called by one of the words, the first word's first.
std::vector<std::size_t> found(const QStringList& fields, const QStringList& words) {
    std::vector<std::size_t> numbers;
    for (const QString& word : words)
        for (qsizetype at = fields.indexOf(word); at >= 0; at = fields.indexOf(word, at + 1))
            numbers.push_back(std::size_t(at));
    return numbers;
}

} // namespace

std::optional<StatementColumns> statementColumns(std::span<const Cell> fields,
                                                 const QMap<QString, QString>& own) {
    QStringList names;
    QStringList plainNames;
    for (const Cell& field : fields) {
        names.append(bare(statementText(field)));
        plainNames.append(statementText(field).trimmed().toCaseFolded());
    }
    const auto search = [&](const char* column, const char16_t* words) {
        const auto ownWord = own.constFind(QLatin1String(column));
        return ownWord == own.constEnd() ? found(names, wordsOf(words))
                                         : found(plainNames, {ownWord->trimmed().toCaseFolded()});
    };
    const auto one = [&](const char* column, const char16_t* words) {
        const auto numbers = search(column, words);
        return numbers.empty() ? std::nullopt : std::optional(numbers.front());
    };
    const auto date = one("date", dateWords);
    StatementColumns columns;
    columns.titles = search("title", titleWords);
    columns.amount = one("amount", amountWords);
    columns.debit = one("debit", debitWords);
    columns.credit = one("credit", creditWords);
    columns.kind = one("kind", kindWords);
    columns.emoji = one("emoji", emojiWords);
    if (!date || (!columns.amount && !(columns.debit && columns.credit)))
        return std::nullopt;
    columns.date = *date;
    return columns;
}

std::optional<bool> isEarningWord(const QString& word) {
    static const QStringList earning = wordsOf(earningWords);
    static const QStringList spending = wordsOf(spendingWords);
    const QString text = word.simplified().toCaseFolded();
    if (earning.contains(text))
        return true;
    return spending.contains(text) ? std::optional(false) : std::nullopt;
}

QString statementText(const Cell& cell) {
    const auto size = qsizetype(cell.text.size());
    if (QUtf8StringView(cell.text.data(), size).isValidUtf8())
        return QString::fromUtf8(cell.text.data(), size);
    const icu::UnicodeString text(cell.text.data(), int(size), "windows-1252");
    return QString(reinterpret_cast<const QChar*>(text.getBuffer()), text.length());
}

} // namespace kovamo

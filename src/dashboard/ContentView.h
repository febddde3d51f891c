#pragma once

#include "Banner.h"
#include "FilteredList.h"
#include "TransactionChart.h"
#include "editing/AddTransactionView.h"
#include "editing/TransactionsView.h"
#include "ledger/TransactionContainer.h"
#include "model/TransactionRefresh.h"
#include "platform/foundation/NotificationCenter.h"

#include <QObject>
#include <QtQml/qqmlregistration.h>
#include <memory>

namespace kovamo {

/// A choice of the time frame picker.
struct TimeFrameChoice {
    Q_GADGET
    QML_VALUE_TYPE(timeFrameChoice)
    Q_PROPERTY(QString label MEMBER label)
    Q_PROPERTY(int value MEMBER value)
    Q_PROPERTY(QString shortcut READ shortcut)

  public:
    /// Bold markup.
    QString label;
    TimeFrame value = 1;

    /// The keys that choose it.
    [[nodiscard]] QString shortcut() const { return QStringLiteral("Ctrl+%1").arg(value); }
};

/// The main screen: the selected time frame and what is shown for it. Whatever changes the records
/// or the frame leads to one new layout in the event loop's next turn, which builds the banner,
/// the chart and the list anew.
class ContentView : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(ContentState)
    QML_UNCREATABLE("Made by the app")
    Q_PROPERTY(int selectedTimeFrame READ selectedTimeFrame NOTIFY selectedTimeFrameChanged)
    Q_PROPERTY(QList<kovamo::TimeFrameChoice> timeFrames READ timeFrames CONSTANT)
    Q_PROPERTY(bool showAddTransaction READ showAddTransaction WRITE setShowAddTransaction NOTIFY
                   showAddTransactionChanged)
    Q_PROPERTY(bool showTransactions READ showTransactions WRITE setShowTransactions NOTIFY
                   showTransactionsChanged)
    Q_PROPERTY(bool isCovered READ isCovered NOTIFY isCoveredChanged)
    Q_PROPERTY(bool hasTransactions READ hasTransactions NOTIFY laidOut)
    Q_PROPERTY(bool hasPeriod READ hasPeriod NOTIFY laidOut)
    Q_PROPERTY(bool isEmpty READ isEmpty NOTIFY laidOut)
    Q_PROPERTY(kovamo::Banner banner READ banner NOTIFY laidOut)
    Q_PROPERTY(kovamo::TransactionChart chart READ chart NOTIFY laidOut)
    Q_PROPERTY(kovamo::FilteredList* filteredList READ filteredList CONSTANT)
    Q_PROPERTY(kovamo::AddTransactionView* addForm READ addForm NOTIFY addFormChanged)
    Q_PROPERTY(kovamo::TransactionsView* transactionsView READ transactionsView NOTIFY
                   transactionsViewChanged)
    Q_PROPERTY(kovamo::ExchangeView* incoming READ incoming CONSTANT)

  public:
    /// Requires: `viewContext` outlives the screen. `requestReview` runs at each appearance, after
    /// the load.
    explicit ContentView(ManagedObjectContext& viewContext,
                         std::function<void()> requestReview = {});

    [[nodiscard]] TimeFrame selectedTimeFrame() const { return m_selectedTimeFrame; }
    [[nodiscard]] static QList<TimeFrameChoice> timeFrames();

    [[nodiscard]] bool showAddTransaction() const { return m_showAddTransaction; }
    void setShowAddTransaction(bool show);

    [[nodiscard]] bool showTransactions() const { return m_showTransactions; }
    void setShowTransactions(bool show);

    /// Whether a sheet is open; one that is on its way out can be called back.
    [[nodiscard]] bool isCovered() const {
        return m_showAddTransaction || m_showTransactions || m_incoming.isPresented();
    }

    /// Whether anything is stored.
    [[nodiscard]] bool hasTransactions() const { return m_hasTransactions; }

    /// Whether banner, chart and list are shown: something is stored, and some of it in the frame.
    [[nodiscard]] bool hasPeriod() const {
        return m_hasTransactions && m_filteredList.rowCount() > 0;
    }

    /// Whether the way to record something is shown in their place.
    [[nodiscard]] bool isEmpty() const { return m_isLaidOut && !hasPeriod(); }

    [[nodiscard]] const Banner& banner() const { return m_banner; }
    [[nodiscard]] const TransactionChart& chart() const { return m_chart; }
    [[nodiscard]] FilteredList* filteredList() { return &m_filteredList; }

    /// The form and the screen behind the sheets, from the moment they are shown until their sheet
    /// has closed; null else. A sheet that is opened again on its way out shows the same, but for a
    /// form that has saved.
    [[nodiscard]] AddTransactionView* addForm() const { return m_addForm.get(); }
    [[nodiscard]] TransactionsView* transactionsView() const { return m_transactionsView.get(); }

    /// The files that come from outside, on a sheet over all others, so that nothing typed is lost.
    [[nodiscard]] ExchangeView* incoming() { return &m_incoming; }

    /// Shows what the file at `path` would bring: at once, or when the screen has appeared and the
    /// user is done with the files before it.
    void importFrom(const QString& path);

    /// What the amount of the list's row is made of; empty for no row.
    Q_INVOKABLE [[nodiscard]] QString rowComposition(int row) const;

    /// Shows all transactions with their search.
    Q_INVOKABLE void findTransactions();

    /// A sheet has closed: what it showed goes.
    Q_INVOKABLE void addTransactionDidClose();
    Q_INVOKABLE void transactionsDidClose();

    /// The screen appears: loads the period, lays it out and runs the review policy.
    Q_INVOKABLE void appear();

    /// Selects a time frame and loads its period, also when it is the selected one already.
    Q_INVOKABLE void select(int timeFrame);

  Q_SIGNALS:
    void selectedTimeFrameChanged();
    void showAddTransactionChanged();
    void showTransactionsChanged();
    void isCoveredChanged();
    void addFormChanged();
    void transactionsViewChanged();
    void laidOut();

  private:
    void importNext();
    void load();
    void layOutLater();
    void layOut();

    ManagedObjectContext& m_viewContext;
    std::function<void()> m_requestReview;
    TimeFrame m_selectedTimeFrame = 1;
    bool m_showAddTransaction = false;
    bool m_showTransactions = false;
    bool m_hasTransactions = false;
    bool m_needsLayout = false;
    bool m_isLaidOut = false;
    LiveFetch m_allTransactions;
    NotificationPublisher m_refreshPublisher{transactionRefresh()};
    TransactionContainer m_transactionContainer;
    Banner m_banner;
    TransactionChart m_chart;
    FilteredList m_filteredList;
    std::unique_ptr<AddTransactionView> m_addForm;
    bool m_addFormIsDone = false;
    std::unique_ptr<TransactionsView> m_transactionsView;
    bool m_hasAppeared = false;
    QStringList m_filesToImport;
    ExchangeView m_incoming;
};

} // namespace kovamo

#pragma once

#include <QObject>
#include <QStringList>
#include <QThread>
#include <QtQml/qqmlregistration.h>
#include <atomic>
#include <functional>
#include <memory>

namespace kovamo {

/// The sheet that exports, imports and goes back to a copy. What takes time runs in a thread of its
/// own on a connection of its own, so that the screens see it as another process's save.
class ExchangeView : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(ExchangeState)
    QML_UNCREATABLE("Made by the screens")
    /// Whether the sheet is open.
    Q_PROPERTY(bool isPresented READ isPresented NOTIFY changed)
    Q_PROPERTY(bool isBusy READ isBusy NOTIFY changed)
    Q_PROPERTY(QString title READ title NOTIFY changed)
    /// The text, one paragraph each.
    Q_PROPERTY(QStringList lines READ lines NOTIFY changed)
    /// What is wrong with single lines of a file.
    Q_PROPERTY(QStringList details READ details NOTIFY changed)
    /// The rows to choose from, if any.
    Q_PROPERTY(QStringList choices READ choices NOTIFY changed)
    /// The label of the button that goes on; empty where there is none.
    Q_PROPERTY(QString action READ action NOTIFY changed)

  public:
    /// Requires that `storePath` is the path of a store.
    explicit ExchangeView(QString storePath, QObject* parent = nullptr);
    /// Stops what is under way; nothing of it is stored.
    ~ExchangeView() override;

    [[nodiscard]] bool isPresented() const { return m_isPresented; }
    [[nodiscard]] bool isBusy() const { return m_worker != nullptr; }
    [[nodiscard]] QString title() const { return m_page.title; }
    [[nodiscard]] QStringList lines() const { return m_page.lines; }
    [[nodiscard]] QStringList details() const { return m_page.details; }
    [[nodiscard]] QStringList choices() const { return m_page.choices; }
    [[nodiscard]] QString action() const { return m_page.action; }

    /// The name to suggest for a file that is exported today.
    Q_INVOKABLE [[nodiscard]] static QString suggestedName();

    /// Writes all records to the file at `path`: as CSV, unless its name ends like one of JSON's.
    /// Without `mayReplace` it first asks whether to replace a file that is there.
    Q_INVOKABLE void exportTo(const QString& path, bool mayReplace);

    /// Shows what importing the file at `path` would change.
    Q_INVOKABLE void importFrom(const QString& path);

    /// Shows the copies that are kept, to choose one.
    Q_INVOKABLE void showCopies();

    Q_INVOKABLE void choose(int index);

    /// What the button does.
    Q_INVOKABLE void proceed();

    /// Closes the sheet, and stops what is under way.
    Q_INVOKABLE void dismiss();

  Q_SIGNALS:
    void changed();

  private:
    using Work = std::function<void()>;

    struct Page {
        QString title;
        QStringList lines{};
        QStringList details{};
        QStringList choices{};
        QString action{};
        std::vector<Work> next{};
    };

    void show(Page page);
    void run(const QString& title, const std::function<Page()>& work);
    void stop();
    void import(const QString& path);
    void goBack(const QString& copyPath, const QString& day);
    [[nodiscard]] Page planPage(const QString& path);
    [[nodiscard]] Page copiesPage();
    [[nodiscard]] Page copyPage(const QString& copyPath, const QString& day);

    QString m_storePath;
    Page m_page;
    bool m_isPresented = false;
    std::unique_ptr<QThread> m_worker;
    int m_run = 0;
    std::atomic<bool> m_isStopped = false;
};

} // namespace kovamo

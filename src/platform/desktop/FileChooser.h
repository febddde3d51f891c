#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QUrl>
#include <QtQml/qqmlregistration.h>
#include <optional>

namespace kovamo {

/// The desktop's own file dialog, over its portal: what phones and sandboxes have. Each question is
/// answered by at most one signal; by none where the user cancels it.
class FileChooser : public QObject {
    Q_OBJECT
    QML_ELEMENT

  public:
    explicit FileChooser(QObject* parent = nullptr) : QObject(parent) {}
    /// One that asks on `bus` instead of the session's.
    explicit FileChooser(const QDBusConnection& bus) : m_ownBus(bus) {}
    /// Takes back the question that is open.
    ~FileChooser() override;

    /// Asks for a file to read.
    Q_INVOKABLE void open(const QString& title);

    /// Asks for a file to write; `name` is suggested.
    Q_INVOKABLE void save(const QString& title, const QString& name);

    /// Answers in the desktop's place with the file at `url`, without `mayReplace`.
    Q_INVOKABLE void choose(const QUrl& url, bool saves, bool mayReplace = false);

  Q_SIGNALS:
    /// The user has chosen the file at `path` to be read.
    void opened(const QString& path);
    /// The user has chosen the file at `path` to be written; `mayReplace` where the desktop has
    /// asked whether to replace one that is there.
    void saved(const QString& path, bool mayReplace);
    /// The desktop has no such dialog.
    void unavailable(bool saves, const QString& title, const QString& name);

  private:
    [[nodiscard]] QDBusConnection bus() const;
    void ask(bool saves, const QString& title, const QString& name);
    void takeBack();

  private Q_SLOTS:
    void answer(const QDBusMessage& message);

  private:
    std::optional<QDBusConnection> m_ownBus;
    bool m_saves = false;
    QString m_request;
};

} // namespace kovamo

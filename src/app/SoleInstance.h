#pragma once

#include "StartAction.h"

#include <QLocalServer>
#include <QObject>

namespace kovamo {

/// Lets one process at a time show the user's data on a display; a later start asks it to come to
/// the front instead. Whoever holds the lock of a file in the user's runtime folder is the one: the
/// system frees it with the process, however that ends.
class SoleInstance : public QObject {
    Q_OBJECT

  public:
    /// Becomes the one for `folder`, or hands `start` to the one there is. Where that does not
    /// answer in ten seconds, goes on without it.
    explicit SoleInstance(const QString& folder, const Start& start = {});
    ~SoleInstance() override;

    /// Whether the one there is has come to the front, so that nothing is left to do here.
    [[nodiscard]] bool handedOver() const { return m_handedOver; }

  Q_SIGNALS:
    /// A later start asks for the window and more; on Wayland its activation token is then in
    /// the environment variable that Qt reads at the next requestActivate().
    void activationRequested(const kovamo::Start& start);

  private:
    [[nodiscard]] bool lock();
    [[nodiscard]] bool ask(const Start& start) const;
    void answer();

    QString m_path;
    int m_lockFile = -1;
    bool m_handedOver = false;
    QLocalServer m_server;
};

} // namespace kovamo

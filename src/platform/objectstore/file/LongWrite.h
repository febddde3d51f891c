#pragma once

#include <QString>

namespace kovamo {

/// Says, for as long as it lives, that the store at a path is being written to for longer than a
/// save takes: then others wait for the end instead of giving up. It is a lock of the store's
/// folder, which the system frees with the process, however that ends.
class LongWrite {
  public:
    explicit LongWrite(const QString& storePath);
    ~LongWrite();
    Q_DISABLE_COPY_MOVE(LongWrite)

    /// Whether some process, or this one, is at it.
    [[nodiscard]] static bool isUnderWay(const QString& storePath);

  private:
    int m_folder;
};

} // namespace kovamo

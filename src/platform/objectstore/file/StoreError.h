#pragma once

#include <QString>
#include <exception>
#include <map>

namespace kovamo {

/// What an operation on the store fails with.
class StoreError : public std::exception {
  public:
    StoreError(QString description, std::map<QString, QString> userInfo, bool isDamage = false)
        : m_description(std::move(description)), m_userInfo(std::move(userInfo)),
          m_isDamage(isDamage) {}

    /// What went wrong, in the store's words.
    [[nodiscard]] const QString& description() const { return m_description; }

    /// Whether the file is damaged, so that going back to a copy helps.
    [[nodiscard]] bool isDamage() const { return m_isDamage; }

    /// The file that it is about; empty where it names none.
    [[nodiscard]] QString path() const;

    /// The details by name, as text: ["key": "value", …].
    [[nodiscard]] QString userInfoDescription() const;

    [[nodiscard]] const char* what() const noexcept override { return "store error"; }

  private:
    QString m_description;
    std::map<QString, QString> m_userInfo;
    bool m_isDamage;
};

/// Throws the StoreError of a file: what went wrong, the system's or SQLite's code, and the file.
[[noreturn]] void fail(const QString& description, int code, const QString& path,
                       bool isDamage = false);

} // namespace kovamo

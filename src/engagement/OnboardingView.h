#pragma once

#include <QObject>
#include <QtQml/qqmlregistration.h>

namespace kovamo {

/// The introduction that a new user pages through: a number of pictures, fixed when it is made, of
/// which one is shown. QML knows it as `OnboardingState`, beside the view of the same name.
class OnboardingView : public QObject {
    Q_OBJECT
    QML_NAMED_ELEMENT(OnboardingState)
    QML_UNCREATABLE("The app's shell makes it.")
    /// Index of the page shown, from 0; an index that is no page's is ignored.
    Q_PROPERTY(int currentPage READ currentPage WRITE setCurrentPage NOTIFY currentPageChanged)
    Q_PROPERTY(int totalPages READ totalPages CONSTANT)
    /// What the button reads.
    Q_PROPERTY(QString caption READ caption NOTIFY currentPageChanged)
    /// Where the user is, in words, for those who do not see the dots.
    Q_PROPERTY(QString position READ position NOTIFY currentPageChanged)

  public:
    /// Starts at page 0; a negative number of pages is a fatal error.
    explicit OnboardingView(int totalPages, QObject* parent = nullptr);

    [[nodiscard]] int currentPage() const { return m_currentPage; }
    void setCurrentPage(int page);
    [[nodiscard]] int totalPages() const { return m_totalPages; }
    [[nodiscard]] QString caption() const;
    [[nodiscard]] QString position() const;

    /// The button: turns to the next page, or finishes on the last.
    Q_INVOKABLE void next();

    /// The name of page `index`'s picture in the app's image assets: "onboarding1" for page 0.
    Q_INVOKABLE [[nodiscard]] static QString pageImageName(int index);

    /// The words in page `index`'s picture, for those who do not see it.
    Q_INVOKABLE [[nodiscard]] static QString pageDescription(int index);

  Q_SIGNALS:
    void currentPageChanged();
    /// The user has pressed "Get Started" on the last page.
    void finished();

  private:
    [[nodiscard]] bool isLastPage() const { return m_currentPage == m_totalPages - 1; }

    int m_currentPage = 0;
    int m_totalPages;
};

} // namespace kovamo

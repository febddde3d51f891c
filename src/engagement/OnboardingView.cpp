#include "OnboardingView.h"

#include "platform/foundation/FatalError.h"

#include <QStringList>

namespace kovamo {

OnboardingView::OnboardingView(int totalPages, QObject* parent)
    : QObject(parent), m_totalPages(totalPages) {
    if (totalPages < 0)
        fatalError(QStringLiteral("Onboarding with %1 pages").arg(totalPages));
}

void OnboardingView::setCurrentPage(int page) {
    if (page == m_currentPage || page < 0 || page >= m_totalPages)
        return;
    m_currentPage = page;
    Q_EMIT currentPageChanged();
}

QString OnboardingView::caption() const {
    return isLastPage() ? QStringLiteral("Get Started") : QStringLiteral("Next");
}

QString OnboardingView::position() const {
    return QStringLiteral("Page %1 of %2").arg(m_currentPage + 1).arg(m_totalPages);
}

void OnboardingView::next() {
    if (m_currentPage < m_totalPages - 1)
        setCurrentPage(m_currentPage + 1);
    else
        Q_EMIT finished();
}

QString OnboardingView::pageImageName(int index) {
    return QStringLiteral("onboarding%1").arg(index + 1);
}

QString OnboardingView::pageDescription(int index) {
    static const QStringList words = {
        QStringLiteral("Note what comes in and what goes out"),
        QStringLiteral("See at a glance where you stand"),
        QStringLiteral("What repeats is planned ahead"),
        QStringLiteral("Everything stays on your device"),
    };
    return words.value(index);
}

} // namespace kovamo

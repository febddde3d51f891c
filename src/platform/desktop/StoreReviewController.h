#pragma once

#include <QObject>
#include <QPointer>
#include <QWindow>
#include <QtQml/qqmlregistration.h>

class QQmlEngine;
class QJSEngine;

namespace kovamo {

/// The platform's rating prompt: asked for by an app, shown when the platform sees fit. That is at
/// most three times in 365 days, and never over a sheet. It never holds up the app.
class StoreReviewController : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    /// The window in which the prompt stands; null while there is none.
    Q_PROPERTY(QWindow* scene READ scene NOTIFY changed)
    /// How many stars the user gave in the prompt that stands and now says thanks; 0 before.
    Q_PROPERTY(int stars READ stars NOTIFY changed)
    /// Whether the app shows a sheet: kept by its shell. One that opens sends the prompt away.
    Q_PROPERTY(bool sheetPresented READ isSheetPresented WRITE setSheetPresented NOTIFY changed)

  public:
    /// The process's one controller.
    static StoreReviewController& shared();
    static StoreReviewController* create(QQmlEngine*, QJSEngine*);

    /// Asks for a review in the window `scene`. Whether a prompt shows is the platform's decision.
    static void requestReview(QWindow& scene) { shared().present(scene); }

    [[nodiscard]] QWindow* scene() const { return m_scene; }
    [[nodiscard]] int stars() const { return m_stars; }
    [[nodiscard]] bool isSheetPresented() const { return m_sheetPresented; }
    void setSheetPresented(bool presented);

    /// The user gives a positive number of stars: opens the software centre's page of the app,
    /// where the desktop has one, else says thanks for a moment.
    Q_INVOKABLE void rate(int stars);

    /// The prompt goes without an answer.
    Q_INVOKABLE void dismiss();

  Q_SIGNALS:
    void changed();

  private:
    StoreReviewController() = default;
    void present(QWindow& scene);

    QPointer<QWindow> m_scene;
    int m_stars = 0;
    bool m_sheetPresented = false;
};

} // namespace kovamo

#pragma once

#include <examples/gallery/GalleryOptions.h>

#include <QEvent>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QRandomGenerator>
#include <QString>

#include <functional>

class GalleryPage;
class GalleryWindow;
class QEventLoop;
class QWidget;
class QWindow;

/**
 * Sends random events to one page of the gallery and to whatever opens over it, in whatever loop is running: each event
 * is posted before the one ahead of it is sent, so that a box's own loop finds the next one waiting.
 *
 * Every decision comes from the generator, and what is chosen from stands in a fixed order, so equal seeds give equal
 * events. What nobody answers is closed in bounded time.
 *
 * The monkey does what a host and its user can do, and no more: it deletes windows, boxes, menus and pages, but no part
 * of a control, and nothing from within that thing's own handler.
 *
 * @code
 * Monkey monkey(QStringLiteral("menus"), 1, 1000);
 * monkey.Play();
 * @endcode
 */
class Monkey : public QObject
{
    Q_OBJECT

public:
    Monkey(const QString& page, quint32 seed, int events);
    ~Monkey() override;

    /** Opens the gallery at the page, sends the events, closes what is open, and deletes the gallery. */
    void Play();

    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Action = void (Monkey::*)();

    // The run of events
    void OpenGallery();
    void Step();
    bool IsFlat() const;
    void CloseTopmost();
    void Act();

    // What events go to
    int Below(int limit);
    bool Chance(int percent);
    GalleryPage* CurrentPage() const;
    QList<QWidget*> Windows() const;
    QWidget* PickWindow();
    QWidget* PickOther();
    QWidget* PickWidget();
    QWidget* PickOfHost();
    Qt::KeyboardModifiers PickModifiers();
    Qt::MouseButton PickButton();

    // Input as the window system gives it
    void PointAt(QWidget* widget, const QPoint& pos);
    void SendMouse(QWindow* window, const QPoint& pos, Qt::MouseButton button, QEvent::Type type);
    void ReleaseAll();
    void SendKey(int key, Qt::KeyboardModifiers modifiers, const QString& text);

    // The events
    void Click();
    void Press();
    void Release();
    void DoubleClick();
    void Drag();
    void Hover();
    void Wheel();
    void TypeText();
    void TypeKey();
    void Compose();
    void ChangeFocus();
    void EnterOrLeave();
    void AskForTip();
    void AskForMenu();
    void Resize();
    void MoveWindow();
    void ChangeState();
    void HideOrShow();
    void HideWindow();
    void Enable();
    void Scroll();
    void ChangeLanguage();
    void ChangeLook();
    void Tell();
    void Announce();
    void OpenPage();
    void CloseWindow();
    void Delete();
    void DeletePageOrGallery();

    void Note(const char* what, const QWidget* widget = nullptr, const QString& detail = QString()) const;

    QString m_strPage;
    int m_iEvents;
    GalleryOptions m_options;
    QRandomGenerator m_random;
    int m_iEvent = 0;
    int m_iSinceFlat = 0; ///< events since nothing was open
    int m_iBaseLevel = 0;
    int m_iTime = 0; ///< ms, as input events tell it
    bool m_bOver = false;
    QEventLoop* m_pLoop = nullptr;
    QPointer<GalleryWindow> m_pWindow;
    QList<QPointer<QWidget>> m_windows; ///< in the order in which they first showed
    QList<QPointer<QWidget>> m_hidden;
    QList<std::function<void()>> m_plan; ///< what follows the event that was sent
    Qt::MouseButtons m_buttons;
    QPointer<QWindow> m_pPressed;
};

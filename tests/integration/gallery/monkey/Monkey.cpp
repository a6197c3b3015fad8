#include "Monkey.h"

#include "MonkeyRecord.h"
#include "VirtualProcess.h"

#include <examples/gallery/GalleryPage.h>
#include <examples/gallery/GalleryWindow.h>
#include <examples/gallery/machine/MachineDiscovery.h>

#include <QAbstractButton>
#include <QApplication>
#include <QContextMenuEvent>
#include <QCursor>
#include <QEnterEvent>
#include <QEventLoop>
#include <QHelpEvent>
#include <QInputMethodEvent>
#include <QLabel>
#include <QScrollArea>
#include <QThread>
#include <QThreadPool>
#include <QWheelEvent>
#include <QWindow>
#include <QtTest/QtTest>

#include <algorithm>
#include <numeric>
#include <utility>

namespace {
constexpr int PatienceEvents = 80;    ///< behind so many, what is open is closed by and by
constexpr int ImpatienceEvents = 600; ///< behind so many, it is deleted
constexpr int EndlessEvents = 3000;   ///< behind so many, it can't be closed at all
constexpr int DeepestLoop = 6;        ///< loops within loops, before nothing more is opened

QEvent::Type StepType()
{
    static const auto type = QEvent::Type(QEvent::registerEventType());
    return type;
}

void Collect(QWidget* parent, QList<QWidget*>* widgets)
{
    for (QObject* child : parent->children()) {
        auto* widget = qobject_cast<QWidget*>(child);
        if (widget && !widget->isWindow() && widget->isVisible()) {
            widgets->append(widget);
            Collect(widget, widgets);
        }
    }
}

/**
 * Windows that a host makes, and so may delete; others belong to a control or to the toolkit. A plain menu is left out:
 * the tool button that opened it still speaks to it when its loop is over.
 */
bool IsOfHost(const QWidget* window)
{
    for (const char* name :
         {"CVelmarMessageBox", "CProgressWidget", "CSelectMachineBox", "ToastWidget", "QMainWindow", "QDialog",
          "CVelmarMenu", "FramelessMainWindow", "FramelessDialog", "PureQtFramelessWindow"}) {
        if (window->inherits(name)) {
            return true;
        }
    }
    return window->objectName() == QLatin1String("previewWindow");
}

/** What a host only arranges others in. */
bool IsContainer(const QWidget* widget)
{
    const QByteArray name = widget->metaObject()->className();
    return name == "QWidget" || name == "QFrame" || qobject_cast<const GalleryPage*>(widget) != nullptr;
}
} // namespace

Monkey::Monkey(const QString& page, quint32 seed, int events)
    : m_strPage(page)
    , m_iEvents(events)
    , m_random(seed)
{
    m_options.iDiscoveryPort = 0; // any free one: nobody announces himself but the monkey
    qApp->installEventFilter(this);
}

Monkey::~Monkey()
{
    delete m_pWindow;
}

void Monkey::Play()
{
    OpenGallery();
    QEventLoop loop;
    m_pLoop = &loop;
    QCoreApplication::postEvent(this, new QEvent(StepType()));
    m_iBaseLevel = QThread::currentThread()->loopLevel() + 1;
    loop.exec();
    m_pLoop = nullptr;
    delete m_pWindow;
}

void Monkey::OpenGallery()
{
    m_pWindow = new GalleryWindow(m_options);
    MonkeyWatchdog::Feed();
    m_pWindow->OpenPage(m_strPage);
    MonkeyWatchdog::Feed();
    m_pWindow->show();
    m_pWindow->activateWindow();
    MonkeyWatchdog::Feed();
}

bool Monkey::event(QEvent* event)
{
    if (event->type() != StepType()) {
        return QObject::event(event);
    }
    // What a worker was given is done before anything else happens: its speed decides nothing.
    QThreadPool::globalInstance()->waitForDone();
    if (!m_bOver) {
        QCoreApplication::postEvent(this, new QEvent(StepType()));
        Step();
    }
    return true;
}

bool Monkey::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Show) {
        auto* widget = qobject_cast<QWidget*>(watched);
        if (widget && widget->isWindow() && !m_windows.contains(widget)) {
            m_windows.removeAll(nullptr);
            m_windows.append(widget);
        }
    }
    return QObject::eventFilter(watched, event);
}

void Monkey::Step()
{
    MonkeyRecord::BeginEvent(++m_iEvent);
    const int wait = Below(100);
    const int ms = wait < 90 ? 1 + Below(25) : wait < 98 ? 30 + Below(270) : 500 + Below(2500);
    VirtualProcess::Advance(ms);
    m_iTime += ms;

    const bool flat = IsFlat();
    m_iSinceFlat = flat ? 0 : m_iSinceFlat + 1;
    if (m_iSinceFlat > EndlessEvents) {
        qFatal("what is open cannot be closed");
    }
    if (m_iEvent > m_iEvents) {
        if (flat) {
            m_bOver = true;
            m_pLoop->quit();
        } else {
            CloseTopmost();
        }
        return;
    }
    if (!m_pWindow) {
        if (flat) {
            Note("open the gallery again");
            OpenGallery();
        } else {
            CloseTopmost();
        }
        return;
    }
    if (flat && (!m_pWindow->isVisible() || m_pWindow->isMinimized()) && Chance(30)) {
        Note("show the gallery again");
        m_pWindow->showNormal();
        m_pWindow->activateWindow();
        return;
    }
    if (flat && (!CurrentPage() || CurrentPage()->objectName() != QStringLiteral("page-") + m_strPage) && Chance(4)) {
        OpenPage();
        return;
    }
    const int urge = m_iSinceFlat > PatienceEvents ? 25 : 2;
    if (!flat && (Chance(urge) || QThread::currentThread()->loopLevel() - m_iBaseLevel > DeepestLoop)) {
        CloseTopmost();
        return;
    }
    Act();
}

bool Monkey::IsFlat() const
{
    return QThread::currentThread()->loopLevel() <= m_iBaseLevel && !QApplication::activeModalWidget() &&
           !QApplication::activePopupWidget();
}

void Monkey::CloseTopmost()
{
    m_plan.clear();
    if (QWidget* popup = QApplication::activePopupWidget()) {
        Note("close the pop-up", popup);
        popup->close();
        return;
    }
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal) {
        // A drag waits for the button's release; a box that was hidden waits to be seen again.
        Note("release everything");
        ReleaseAll();
        for (const QPointer<QWidget>& hidden : std::exchange(m_hidden, {})) {
            if (hidden) {
                hidden->show();
            }
        }
        SendKey(Qt::Key_Escape, Qt::NoModifier, QString());
        return;
    }
    if (m_iSinceFlat > ImpatienceEvents && Chance(20)) {
        Note("give up and delete", modal);
        modal->deleteLater();
        return;
    }
    if (Chance(30)) {
        Note("close", modal);
        modal->close();
        return;
    }
    QList<QAbstractButton*> buttons;
    for (auto* button : modal->findChildren<QAbstractButton*>()) {
        if (button->isVisible() && button->isEnabled()) {
            buttons.append(button);
        }
    }
    if (buttons.isEmpty()) {
        Note("wait for", modal);
        VirtualProcess::Advance(200);
        return;
    }
    QAbstractButton* button = buttons.at(Below(int(buttons.size())));
    Note("answer by", button);
    button->click();
}

void Monkey::Act()
{
    if (!m_plan.isEmpty()) {
        const std::function<void()> next = m_plan.takeFirst();
        next();
        return;
    }
    struct Choice
    {
        int iWeight;
        Action action;
    };
    static constexpr Choice Choices[] = {
        {260, &Monkey::Click},
        {50, &Monkey::Press},
        {60, &Monkey::Release},
        {40, &Monkey::DoubleClick},
        {30, &Monkey::Drag},
        {140, &Monkey::Hover},
        {50, &Monkey::Wheel},
        {60, &Monkey::TypeText},
        {120, &Monkey::TypeKey},
        {15, &Monkey::Compose},
        {30, &Monkey::ChangeFocus},
        {20, &Monkey::EnterOrLeave},
        {15, &Monkey::AskForTip},
        {10, &Monkey::AskForMenu},
        {20, &Monkey::Resize},
        {10, &Monkey::MoveWindow},
        {8, &Monkey::ChangeState},
        {15, &Monkey::HideOrShow},
        {5, &Monkey::HideWindow},
        {10, &Monkey::Enable},
        {15, &Monkey::Scroll},
        {4, &Monkey::ChangeLanguage},
        {6, &Monkey::ChangeLook},
        {15, &Monkey::Tell},
        {20, &Monkey::Announce},
        {6, &Monkey::OpenPage},
        {10, &Monkey::CloseWindow},
        {12, &Monkey::Delete},
        {2, &Monkey::DeletePageOrGallery},
    };
    static const int total = std::accumulate(std::begin(Choices), std::end(Choices), 0,
                                             [](int sum, const Choice& choice) { return sum + choice.iWeight; });
    int rest = Below(total);
    for (const Choice& choice : Choices) {
        if ((rest -= choice.iWeight) < 0) {
            (this->*choice.action)();
            return;
        }
    }
}

int Monkey::Below(int limit)
{
    return limit > 0 ? m_random.bounded(limit) : 0;
}

bool Monkey::Chance(int percent)
{
    return Below(100) < percent;
}

GalleryPage* Monkey::CurrentPage() const
{
    if (m_pWindow) {
        for (auto* page : m_pWindow->findChildren<GalleryPage*>()) {
            if (page->isVisible()) {
                return page;
            }
        }
    }
    return nullptr;
}

QList<QWidget*> Monkey::Windows() const
{
    QList<QWidget*> windows;
    for (const QPointer<QWidget>& window : m_windows) {
        if (window && window->isWindow() && window->isVisible()) {
            windows.append(window);
        }
    }
    return windows;
}

QWidget* Monkey::PickWindow()
{
    if (Chance(70)) {
        if (QWidget* popup = QApplication::activePopupWidget()) {
            return popup;
        }
        if (QWidget* modal = QApplication::activeModalWidget()) {
            return modal;
        }
        if (m_pWindow->isVisible()) {
            return m_pWindow;
        }
    }
    const QList<QWidget*> windows = Windows();
    return windows.isEmpty() ? nullptr : windows.at(Below(int(windows.size())));
}

QWidget* Monkey::PickOther()
{
    QList<QWidget*> windows = Windows();
    windows.removeAll(m_pWindow.data());
    windows.removeIf([](const QWidget* window) { return !IsOfHost(window); });
    return windows.isEmpty() ? nullptr : windows.at(Below(int(windows.size())));
}

QWidget* Monkey::PickWidget()
{
    QWidget* scope = PickWindow();
    if (!scope) {
        return nullptr;
    }
    if (scope == m_pWindow && CurrentPage() && Chance(80)) {
        scope = CurrentPage();
    }
    QList<QWidget*> widgets{scope};
    Collect(scope, &widgets);
    QWidget* widget = widgets.at(Below(int(widgets.size())));
    // Texts and frames are many, and little happens there.
    if (qobject_cast<QLabel*>(widget) || IsContainer(widget)) {
        widget = widgets.at(Below(int(widgets.size())));
    }
    return widget;
}

QWidget* Monkey::PickOfHost()
{
    GalleryPage* page = CurrentPage();
    if (!page) {
        return nullptr;
    }
    QList<QWidget*> widgets;
    Collect(page, &widgets);
    if (widgets.isEmpty()) {
        return nullptr;
    }
    QWidget* widget = widgets.at(Below(int(widgets.size())));
    // A part of a control stands for the control.
    for (QWidget* parent = widget->parentWidget(); parent && parent != page; parent = parent->parentWidget()) {
        if (!IsContainer(parent)) {
            widget = parent;
        }
    }
    return widget;
}

Qt::KeyboardModifiers Monkey::PickModifiers()
{
    static constexpr Qt::KeyboardModifier Modifiers[] = {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
                                                         Qt::KeypadModifier};
    Qt::KeyboardModifiers modifiers;
    while (Chance(20)) {
        modifiers |= Modifiers[Below(4)];
    }
    return modifiers;
}

Qt::MouseButton Monkey::PickButton()
{
    const int button = Below(10);
    return button < 8 ? Qt::LeftButton : button < 9 ? Qt::RightButton : Qt::MiddleButton;
}

void Monkey::PointAt(QWidget* widget, const QPoint& pos)
{
    QCursor::setPos(widget->mapToGlobal(pos));
}

void Monkey::SendMouse(QWindow* window, const QPoint& pos, Qt::MouseButton button, QEvent::Type type)
{
    if (!window || !window->isVisible()) {
        return;
    }
    if (type == QEvent::MouseButtonPress) {
        m_buttons |= button;
        m_pPressed = window;
    } else if (type == QEvent::MouseButtonRelease) {
        m_buttons &= ~button;
    }
    qt_handleMouseEvent(window, pos, window->mapToGlobal(pos), m_buttons, button, type, PickModifiers(), m_iTime);
}

void Monkey::ReleaseAll()
{
    for (const Qt::MouseButton button : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton}) {
        if (!m_buttons.testFlag(button)) {
            continue;
        }
        QWindow* window = m_pPressed ? m_pPressed.data() : m_pWindow ? m_pWindow->windowHandle() : nullptr;
        m_buttons &= ~button;
        if (window) {
            SendMouse(window, QPoint(window->width() / 2, window->height() / 2), button, QEvent::MouseButtonRelease);
        }
    }
}

void Monkey::SendKey(int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    if (QWindow* window = QGuiApplication::focusWindow()) {
        qt_handleKeyEvent(window, QEvent::KeyPress, key, modifiers, text);
    }
    // The key may have closed that window; the release then comes to the one that has the focus now.
    if (QWindow* window = QGuiApplication::focusWindow()) {
        qt_handleKeyEvent(window, QEvent::KeyRelease, key, modifiers, text);
    }
}

void Monkey::Click()
{
    QWidget* widget = PickWidget();
    if (!widget || widget->size().isEmpty()) {
        return;
    }
    const QPoint pos{Below(widget->width()), Below(widget->height())};
    const Qt::MouseButton button = PickButton();
    QWidget* top = widget->window();
    const QPoint place = widget->mapTo(top, pos);
    Note("click", widget, QStringLiteral("at %1,%2 by %3").arg(pos.x()).arg(pos.y()).arg(button));
    const QPointer<QWindow> window = top->windowHandle();
    const auto press = [this, window, place, button] { SendMouse(window, place, button, QEvent::MouseButtonPress); };
    const auto release = [this, window, place, button] {
        SendMouse(window, place, button, QEvent::MouseButtonRelease);
    };
    if (Chance(30)) {
        press();
        release();
        return;
    }
    PointAt(widget, pos);
    m_plan = {press, release};
}

void Monkey::Press()
{
    QWidget* widget = PickWidget();
    if (widget && !widget->size().isEmpty()) {
        const QPoint pos{Below(widget->width()), Below(widget->height())};
        Note("press", widget, QStringLiteral("at %1,%2").arg(pos.x()).arg(pos.y()));
        SendMouse(widget->window()->windowHandle(), widget->mapTo(widget->window(), pos), PickButton(),
                  QEvent::MouseButtonPress);
    }
}

void Monkey::Release()
{
    Note("release all buttons");
    ReleaseAll();
}

void Monkey::DoubleClick()
{
    QWidget* widget = PickWidget();
    if (!widget || widget->size().isEmpty()) {
        return;
    }
    const QPoint pos{Below(widget->width()), Below(widget->height())};
    Note("double-click", widget, QStringLiteral("at %1,%2").arg(pos.x()).arg(pos.y()));
    const QPointer<QWindow> window = widget->window()->windowHandle();
    const QPoint place = widget->mapTo(widget->window(), pos);
    for (int click = 0; click < 2; ++click) {
        SendMouse(window, place, Qt::LeftButton, QEvent::MouseButtonPress);
        SendMouse(window, place, Qt::LeftButton, QEvent::MouseButtonRelease);
    }
}

void Monkey::Drag()
{
    QWidget* widget = PickWidget();
    if (!widget || widget->size().isEmpty()) {
        return;
    }
    const QPoint pos{Below(widget->width()), Below(widget->height())};
    const QPointer<QWindow> window = widget->window()->windowHandle();
    const QPoint from = widget->mapTo(widget->window(), pos);
    Note("drag", widget, QStringLiteral("from %1,%2").arg(pos.x()).arg(pos.y()));
    m_plan.clear();
    m_plan.append([this, window, from] { SendMouse(window, from, Qt::LeftButton, QEvent::MouseButtonPress); });
    QPoint to = from;
    for (int step = 1 + Below(8); step > 0; --step) {
        to += QPoint{Below(121) - 60, Below(81) - 40};
        m_plan.append([this, window, to] { SendMouse(window, to, Qt::NoButton, QEvent::MouseMove); });
    }
    m_plan.append([this, window, to] { SendMouse(window, to, Qt::LeftButton, QEvent::MouseButtonRelease); });
}

void Monkey::Hover()
{
    QWidget* widget = PickWidget();
    if (widget && !widget->size().isEmpty()) {
        const QPoint pos{Below(widget->width()), Below(widget->height())};
        Note("point at", widget, QStringLiteral("%1,%2").arg(pos.x()).arg(pos.y()));
        PointAt(widget, pos);
    }
}

void Monkey::Wheel()
{
    QWidget* widget = PickWidget();
    if (!widget) {
        return;
    }
    const QPoint pos = widget->rect().center();
    const QPoint angle = Chance(80) ? QPoint(0, (Below(9) - 4) * 60) : QPoint((Below(9) - 4) * 60, 0);
    Note("turn the wheel over", widget, QStringLiteral("by %1,%2").arg(angle.x()).arg(angle.y()));
    QWheelEvent event(pos, widget->mapToGlobal(pos), QPoint(), angle, m_buttons, PickModifiers(), Qt::NoScrollPhase,
                      false);
    QCoreApplication::sendEvent(widget, &event);
}

void Monkey::TypeText()
{
    static const QStringList Texts = {
        QStringLiteral("12"),    QStringLiteral("-3.75"),       QStringLiteral("0"),
        QStringLiteral("1e9"),   QStringLiteral("127.0.0.1"),   QStringLiteral("300.1.2.3"),
        QStringLiteral("abc"),   QStringLiteral("9999999999"),  QStringLiteral("刀"),
        QStringLiteral("<b>%1"), QStringLiteral("..//\\\":*?"), QStringLiteral(" ")};
    const QString text = Texts.at(Below(int(Texts.size())));
    Note("type", QApplication::focusWidget(), text);
    m_plan.clear();
    for (const QChar letter : text) {
        m_plan.append([this, letter] { SendKey(letter.toUpper().unicode(), Qt::NoModifier, QString(letter)); });
    }
    if (Chance(50)) {
        m_plan.append([this] { SendKey(Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r")); });
    }
}

void Monkey::TypeKey()
{
    static constexpr Qt::Key Keys[] = {
        Qt::Key_Left,   Qt::Key_Right,    Qt::Key_Up,     Qt::Key_Down,      Qt::Key_Home,    Qt::Key_End,
        Qt::Key_PageUp, Qt::Key_PageDown, Qt::Key_Tab,    Qt::Key_Tab,       Qt::Key_Backtab, Qt::Key_Return,
        Qt::Key_Enter,  Qt::Key_Escape,   Qt::Key_Delete, Qt::Key_Backspace, Qt::Key_Space,   Qt::Key_F2,
        Qt::Key_F4,     Qt::Key_F10,      Qt::Key_Menu,   Qt::Key_Shift,     Qt::Key_Control, Qt::Key_Alt,
        Qt::Key_A,      Qt::Key_C,        Qt::Key_V,      Qt::Key_X,         Qt::Key_Z,       Qt::Key_N,
        Qt::Key_S,      Qt::Key_5,        Qt::Key_Period, Qt::Key_Minus};
    const Qt::Key key = Keys[Below(int(std::size(Keys)))];
    Qt::KeyboardModifiers modifiers = PickModifiers();
    QString text;
    if (key < Qt::Key_Escape) {
        if (key >= Qt::Key_A && Chance(60)) {
            modifiers |= Qt::ControlModifier;
        }
        text = QChar(modifiers & Qt::ControlModifier ? key & 0x1f : int(key));
    } else if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        text = QStringLiteral("\r");
    }
    Note("key", QApplication::focusWidget(), QKeySequence(int(key) | int(modifiers.toInt())).toString());
    SendKey(key, modifiers, text);
}

void Monkey::Compose()
{
    QWidget* widget = QApplication::focusWidget();
    if (!widget || !widget->testAttribute(Qt::WA_InputMethodEnabled)) {
        return;
    }
    Note("compose", widget);
    QInputMethodEvent event(Chance(50) ? QStringLiteral("dao") : QString(), {});
    if (Chance(70)) {
        event.setCommitString(QStringLiteral("刀具"));
    }
    QCoreApplication::sendEvent(widget, &event);
}

void Monkey::ChangeFocus()
{
    QWidget* widget = PickWidget();
    if (!widget) {
        return;
    }
    if (Chance(20)) {
        if (!widget->window()->windowFlags().testFlag(Qt::WindowDoesNotAcceptFocus)) {
            Note("activate", widget->window());
            widget->activateWindow();
        }
    } else if (Chance(20)) {
        Note("clear the focus");
        if (QWidget* focus = QApplication::focusWidget()) {
            focus->clearFocus();
        }
    } else {
        static constexpr Qt::FocusReason Reasons[] = {Qt::MouseFocusReason, Qt::TabFocusReason, Qt::OtherFocusReason};
        Note("focus", widget);
        widget->setFocus(Reasons[Below(3)]);
    }
}

void Monkey::EnterOrLeave()
{
    QWidget* widget = PickWidget();
    if (!widget) {
        return;
    }
    if (Chance(50)) {
        Note("enter", widget);
        const QPoint pos = widget->rect().center();
        QEnterEvent event(pos, widget->mapTo(widget->window(), pos), widget->mapToGlobal(pos));
        QCoreApplication::sendEvent(widget, &event);
    } else {
        Note("leave", widget);
        QEvent event(QEvent::Leave);
        QCoreApplication::sendEvent(widget, &event);
    }
}

void Monkey::AskForTip()
{
    if (QWidget* widget = PickWidget()) {
        Note("ask for the tip of", widget);
        const QPoint pos = widget->rect().center();
        QHelpEvent event(QEvent::ToolTip, pos, widget->mapToGlobal(pos));
        QCoreApplication::sendEvent(widget, &event);
    }
}

void Monkey::AskForMenu()
{
    if (QWidget* widget = PickWidget()) {
        Note("ask for the menu of", widget);
        const QPoint pos = widget->rect().center();
        QContextMenuEvent event(Chance(50) ? QContextMenuEvent::Keyboard : QContextMenuEvent::Mouse, pos,
                                widget->mapToGlobal(pos));
        QCoreApplication::sendEvent(widget, &event);
    }
}

void Monkey::Resize()
{
    if (QWidget* window = PickWindow()) {
        const QSize size{1 + Below(1600), 1 + Below(1100)};
        Note("resize", window, QStringLiteral("to %1 x %2").arg(size.width()).arg(size.height()));
        window->resize(size);
    }
}

void Monkey::MoveWindow()
{
    if (QWidget* window = PickWindow()) {
        const QPoint pos{Below(1200) - 200, Below(900) - 100};
        Note("move", window, QStringLiteral("to %1,%2").arg(pos.x()).arg(pos.y()));
        window->move(pos);
    }
}

void Monkey::ChangeState()
{
    QWidget* window = Chance(60) ? m_pWindow.data() : PickWindow();
    if (!window || window->windowType() == Qt::Popup || window->windowType() == Qt::ToolTip) {
        return;
    }
    switch (Below(4)) {
    case 0:
        Note("minimise", window);
        window->showMinimized();
        break;
    case 1:
        Note("maximise", window);
        window->showMaximized();
        break;
    case 2:
        Note("full screen", window);
        window->showFullScreen();
        break;
    default:
        Note("restore", window);
        window->showNormal();
        break;
    }
}

void Monkey::HideOrShow()
{
    m_hidden.removeAll(nullptr);
    if (!m_hidden.isEmpty() && Chance(60)) {
        const QPointer<QWidget> widget = m_hidden.takeAt(Below(int(m_hidden.size())));
        Note("show", widget);
        widget->show();
    } else if (QWidget* widget = PickOfHost()) {
        Note("hide", widget);
        m_hidden.append(widget);
        widget->hide();
    }
}

void Monkey::HideWindow()
{
    QWidget* window = Chance(20) ? m_pWindow.data() : PickOther();
    if (window) {
        Note("hide", window);
        m_hidden.append(window);
        window->hide();
    }
}

void Monkey::Enable()
{
    if (QWidget* widget = PickOfHost()) {
        const bool enable = Chance(70);
        Note(enable ? "enable" : "disable", widget);
        widget->setEnabled(enable);
    }
}

void Monkey::Scroll()
{
    QWidget* widget = PickOfHost();
    for (QWidget* parent = widget; parent; parent = parent->parentWidget()) {
        if (auto* area = qobject_cast<QScrollArea*>(parent)) {
            Note("scroll to", widget);
            area->ensureWidgetVisible(widget);
            return;
        }
    }
}

void Monkey::ChangeLanguage()
{
    const bool english = Chance(50);
    Note("change the language", nullptr, english ? QStringLiteral("en") : QStringLiteral("zh"));
    m_pWindow->SetLanguage(english ? QStringLiteral("en") : QStringLiteral("zh"));
}

void Monkey::ChangeLook()
{
    QWidget* widget = PickOfHost();
    if (!widget) {
        return;
    }
    switch (Below(3)) {
    case 0: {
        Note("change the font of", widget);
        QFont font = widget->font();
        font.setPixelSize(6 + Below(40));
        widget->setFont(font);
        break;
    }
    case 1: {
        Note("change the palette of", widget);
        QPalette palette = widget->palette();
        palette.setColor(QPalette::Window, QColor::fromRgb(m_random.generate()));
        widget->setPalette(palette);
        break;
    }
    default:
        Note("change the direction of", widget);
        widget->setLayoutDirection(Chance(50) ? Qt::RightToLeft : Qt::LeftToRight);
        break;
    }
}

void Monkey::Tell()
{
    static constexpr QEvent::Type Types[] = {
        QEvent::FontChange,       QEvent::PaletteChange,    QEvent::StyleChange,          QEvent::EnabledChange,
        QEvent::LanguageChange,   QEvent::LocaleChange,     QEvent::LayoutRequest,        QEvent::WindowActivate,
        QEvent::WindowDeactivate, QEvent::ActivationChange, QEvent::LayoutDirectionChange};
    QWidget* widget = PickWidget();
    if (!widget) {
        return;
    }
    const QEvent::Type type = Types[Below(int(std::size(Types)))];
    Note("tell", widget, QStringLiteral("event %1").arg(type));
    QEvent event(type);
    QCoreApplication::sendEvent(widget, &event);
}

void Monkey::Announce()
{
    GalleryPage* page = CurrentPage();
    auto* discovery = page ? page->findChild<MachineDiscovery*>() : nullptr;
    if (!discovery) {
        return;
    }
    static const QStringList Roads = {QStringLiteral("USB"), QStringLiteral("Ethernet"), QStringLiteral("WiFi"),
                                      QString()};
    const QString text = QStringLiteral("VELMAR*SN%1*V5*127.0.0.%2*5002*%3")
                             .arg(Below(9))
                             .arg(1 + Below(5))
                             .arg(Roads.at(Below(int(Roads.size()))));
    Note("announce", nullptr, text);
    Q_EMIT discovery->SignalMachineFound(text);
}

void Monkey::OpenPage()
{
    Note("open the page", nullptr, m_strPage);
    m_pWindow->OpenPage(m_strPage);
}

void Monkey::CloseWindow()
{
    QWidget* window = Chance(3) ? m_pWindow.data() : PickOther();
    if (window) {
        Note("close", window);
        window->close();
    }
}

void Monkey::Delete()
{
    QWidget* window = PickOther();
    if (!window) {
        return;
    }
    if (Chance(50)) {
        Note("delete later", window);
        window->deleteLater();
    } else {
        Note("delete", window);
        delete window;
    }
}

void Monkey::DeletePageOrGallery()
{
    QWidget* victim = m_pWindow;
    if (Chance(60) && CurrentPage()) {
        victim = CurrentPage();
    }
    if (Chance(50)) {
        Note("delete later", victim);
        victim->deleteLater();
    } else {
        Note("delete", victim);
        delete victim;
    }
}

void Monkey::Note(const char* what, const QWidget* widget, const QString& detail) const
{
    QByteArray text = what;
    if (widget) {
        text += ' ' + QByteArray(widget->metaObject()->className());
        if (!widget->objectName().isEmpty()) {
            text += " \"" + widget->objectName().toUtf8() + '"';
        }
        if (widget->window() != widget) {
            text += " in " + QByteArray(widget->window()->metaObject()->className());
        }
    }
    if (!detail.isEmpty()) {
        text += ' ' + detail.toUtf8();
    }
    MonkeyRecord::Note(text);
}

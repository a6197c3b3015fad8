#include "TourPlayer.h"

#include <QGuiApplication>
#include <QHash>
#include <QPoint>
#include <QTimer>

#include <algorithm>
#include <deque>
#include <functional>
#include <vector>

#include <windows.h>

namespace {
// What answers an event gets its turn before the next one.
constexpr int GapMs = 15;
// After a second it is pressed wherever the pointer is, and the step tells what is missing.
constexpr int MostTries = 60;

void SendMouse(DWORD flags, DWORD data = 0)
{
    INPUT input = {};
    input.type = INPUT_MOUSE;
    input.mi.dwFlags = flags;
    input.mi.mouseData = data;
    SendInput(1, &input, sizeof(input));
}

void SendKey(WORD key, WORD unicode, DWORD flags)
{
    INPUT input = {};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.wScan = key ? WORD(MapVirtualKeyW(key, MAPVK_VK_TO_VSC)) : unicode;
    input.ki.dwFlags = flags;
    SendInput(1, &input, sizeof(input));
}

/** Where the pointer was last sent to: a point of a window's client area. */
struct Target
{
    HWND window = nullptr;
    POINT point = {};

    void Approach() const
    {
        POINT place = point;
        ClientToScreen(window, &place);
        SetCursorPos(place.x, place.y);
    }
    /** A window that is about to come up may still lie below the one it covers, or be on its way. */
    bool IsReached() const
    {
        POINT place = point;
        ClientToScreen(window, &place);
        POINT cursor = {};
        GetCursorPos(&cursor);
        return cursor.x == place.x && cursor.y == place.y &&
               GetAncestor(WindowFromPoint(cursor), GA_ROOT) == GetAncestor(window, GA_ROOT);
    }
};

void SendButton(int button, bool down)
{
    switch (button) {
    case 1:
        SendMouse(down ? MOUSEEVENTF_LEFTDOWN : MOUSEEVENTF_LEFTUP);
        break;
    case 2:
        SendMouse(down ? MOUSEEVENTF_MIDDLEDOWN : MOUSEEVENTF_MIDDLEUP);
        break;
    case 3:
        SendMouse(down ? MOUSEEVENTF_RIGHTDOWN : MOUSEEVENTF_RIGHTUP);
        break;
    case 4:
    case 5: // the wheel counts as two buttons, away and towards the user
        if (down) {
            SendMouse(MOUSEEVENTF_WHEEL, DWORD(button == 4 ? WHEEL_DELTA : -WHEEL_DELTA));
        }
        break;
    default:
        break;
    }
}

/** The virtual key of a name, or 0. */
WORD KeyOf(const QString& name)
{
    static const QHash<QString, WORD> keys = {
        {QStringLiteral("Return"), VK_RETURN},   {QStringLiteral("Escape"), VK_ESCAPE},
        {QStringLiteral("Tab"), VK_TAB},         {QStringLiteral("BackSpace"), VK_BACK},
        {QStringLiteral("Delete"), VK_DELETE},   {QStringLiteral("space"), VK_SPACE},
        {QStringLiteral("Home"), VK_HOME},       {QStringLiteral("End"), VK_END},
        {QStringLiteral("Up"), VK_UP},           {QStringLiteral("Down"), VK_DOWN},
        {QStringLiteral("Left"), VK_LEFT},       {QStringLiteral("Right"), VK_RIGHT},
        {QStringLiteral("Prior"), VK_PRIOR},     {QStringLiteral("Next"), VK_NEXT},
        {QStringLiteral("Page_Up"), VK_PRIOR},   {QStringLiteral("Page_Down"), VK_NEXT},
        {QStringLiteral("KP_Enter"), VK_RETURN}, {QStringLiteral("Menu"), VK_APPS},
        {QStringLiteral("ctrl"), VK_CONTROL},    {QStringLiteral("shift"), VK_SHIFT},
        {QStringLiteral("alt"), VK_MENU}};
    if (const WORD key = keys.value(name)) {
        return key;
    }
    if (name.size() == 1) {
        const SHORT key = VkKeyScanW(name.at(0).unicode());
        return key == -1 ? WORD(0) : WORD(key & 0xff);
    }
    if (name.startsWith(QLatin1Char('F'))) {
        bool isNumber = false;
        const int number = QStringView(name).mid(1).toInt(&isNumber);
        return isNumber && number >= 1 && number <= 24 ? WORD(VK_F1 + number - 1) : WORD(0);
    }
    return 0;
}

} // namespace

struct TourPlayer::Road
{
    struct Beat
    {
        int iDelayMs = 0;
        std::function<void()> play;
        Target target = {}; ///< played once the pointer is there; no window: at once
    };

    /** Appends the beats of the words; the first that is not understood, or nothing. */
    QString Append(const QStringList& words);
    void AppendText(const QString& text, int delayMs);
    bool AppendKey(const QString& name);

    std::deque<Beat> beats;
    QTimer timer;
    int iTries = 0; ///< of the first beat
};

QString TourPlayer::Road::Append(const QStringList& words)
{
    int at = 0;
    Target target;
    const auto next = [&words, &at] { return words.value(at++); };
    // The number that follows one of the options of the command, or the default.
    const auto option = [&](const QString& name, int otherwise) {
        if (words.value(at) != name) {
            return otherwise;
        }
        at += 2;
        return words.value(at - 1).toInt();
    };
    while (at < words.size()) {
        const QString word = next();
        if (word == QLatin1String("sleep")) {
            beats.push_back({int(next().toDouble() * 1000), {}});
        } else if (word == QLatin1String("mousemove")) {
            if (next() != QLatin1String("--window")) {
                return word;
            }
            const HWND window = reinterpret_cast<HWND>(quintptr(next().toULongLong()));
            const int x = next().toInt();
            const int y = next().toInt();
            target = {window, {x, y}};
            beats.push_back({GapMs, [target] { target.Approach(); }});
        } else if (word == QLatin1String("mousemove_relative")) {
            if (next() != QLatin1String("--")) {
                return word;
            }
            const int x = next().toInt();
            const int y = next().toInt();
            target = {};
            beats.push_back({GapMs, [x, y] {
                                 POINT point = {};
                                 GetCursorPos(&point);
                                 SetCursorPos(point.x + x, point.y + y);
                             }});
        } else if (word == QLatin1String("click")) {
            const int times = option(QStringLiteral("--repeat"), 1);
            const int delay = option(QStringLiteral("--delay"), GapMs);
            const int button = next().toInt();
            for (int time = 0; time < times; ++time) {
                beats.push_back({time ? delay : GapMs, [button] { SendButton(button, true); }, target});
                target = {};
                beats.push_back({GapMs, [button] { SendButton(button, false); }});
            }
        } else if (word == QLatin1String("mousedown") || word == QLatin1String("mouseup")) {
            const bool down = word == QLatin1String("mousedown");
            const int button = next().toInt();
            beats.push_back({GapMs, [button, down] { SendButton(button, down); }, target});
            target = {};
        } else if (word == QLatin1String("key")) {
            const QString name = next();
            if (!AppendKey(name)) {
                return name;
            }
        } else if (word == QLatin1String("type")) {
            const int delay = option(QStringLiteral("--delay"), GapMs);
            option(QStringLiteral("--args"), 1);
            AppendText(next(), delay);
        } else {
            return word;
        }
    }
    return QString();
}

void TourPlayer::Road::AppendText(const QString& text, int delayMs)
{
    for (const QChar letter : text) {
        const SHORT known = VkKeyScanW(letter.unicode());
        const bool plain = known != -1 && !(HIBYTE(known) & ~1); // with no modifier but Shift
        beats.push_back({delayMs, [letter, known, plain] {
                             if (!plain) {
                                 SendKey(0, letter.unicode(), KEYEVENTF_UNICODE);
                                 SendKey(0, letter.unicode(), KEYEVENTF_UNICODE | KEYEVENTF_KEYUP);
                                 return;
                             }
                             const bool shift = HIBYTE(known) & 1;
                             if (shift) {
                                 SendKey(VK_SHIFT, 0, 0);
                             }
                             SendKey(LOBYTE(known), 0, 0);
                             SendKey(LOBYTE(known), 0, KEYEVENTF_KEYUP);
                             if (shift) {
                                 SendKey(VK_SHIFT, 0, KEYEVENTF_KEYUP);
                             }
                         }});
    }
}

bool TourPlayer::Road::AppendKey(const QString& name)
{
    std::vector<WORD> keys;
    for (const QString& part : name.split(QLatin1Char('+'))) {
        keys.push_back(KeyOf(part));
    }
    if (std::find(keys.begin(), keys.end(), WORD(0)) != keys.end()) {
        return false;
    }
    beats.push_back({GapMs, [keys] {
                         for (const WORD key : keys) {
                             SendKey(key, 0, 0);
                         }
                         for (auto key = keys.rbegin(); key != keys.rend(); ++key) {
                             SendKey(*key, 0, KEYEVENTF_KEYUP);
                         }
                     }});
    return true;
}

TourPlayer::TourPlayer(QObject* parent)
    : QObject(parent)
    , m_pRoad(std::make_unique<Road>())
{
    m_pRoad->timer.setSingleShot(true);
    connect(&m_pRoad->timer, &QTimer::timeout, this, [this] {
        const Road::Beat beat = m_pRoad->beats.front();
        if (beat.target.window && m_pRoad->iTries < MostTries && !beat.target.IsReached()) {
            ++m_pRoad->iTries;
            beat.target.Approach();
            m_pRoad->timer.start(GapMs);
            return;
        }
        m_pRoad->iTries = 0;
        m_pRoad->beats.pop_front();
        // Before it is played: what it sets off may run an event loop of its own.
        if (!m_pRoad->beats.empty()) {
            m_pRoad->timer.start(m_pRoad->beats.front().iDelayMs);
        }
        if (beat.play) {
            beat.play();
        }
    });
}

TourPlayer::~TourPlayer() = default;

QString TourPlayer::Missing()
{
    return QGuiApplication::platformName() == QLatin1String("windows") ? QString() : QStringLiteral("a desktop");
}

void TourPlayer::Start(const QStringList& words)
{
    const QString strange = m_pRoad->Append(words);
    if (!strange.isEmpty()) {
        m_pRoad->beats.clear();
        Q_EMIT SignalFailed(QStringLiteral("no input is known as \"%1\"").arg(strange));
        return;
    }
    m_pRoad->timer.start(m_pRoad->beats.front().iDelayMs);
}

bool TourPlayer::IsBusy() const
{
    return !m_pRoad->beats.empty();
}

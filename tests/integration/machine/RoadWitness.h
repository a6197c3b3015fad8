#pragma once

#include <CorvaneBase/CorvaneRegisterHelper.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QEvent>
#include <QLabel>
#include <QPointer>
#include <QPushButton>
#include <QTest>
#include <QTimer>

/**
 * User and host of a machine on the cable: presses the panel's button, reads the closing message and presses its
 * button, and keeps in order whatever the road tells anybody. One comparison then shows that nothing is missing and
 * that nothing comes twice.
 *
 * @code
 * RoadWitness witness;
 * witness.OpenPanel();
 * witness.Connect();
 * QCOMPARE(witness.m_listEvents, RoadWitness::Connected(serial));
 * @endcode
 */
class RoadWitness : public QObject
{
public:
    static constexpr int LimitMs = 60000; ///< for one road; the process ends where one hangs

    RoadWitness()
    {
        m_watchdog.setSingleShot(true);
        m_watchdog.setInterval(LimitMs);
        connect(&m_watchdog, &QTimer::timeout, this, [] { qFatal("a road has not ended in time"); });
        m_heart.setInterval(10);
        connect(&m_heart, &QTimer::timeout, this,
                [this] { m_iLongestPauseMs = qMax(m_iLongestPauseMs, m_beat.restart()); });
        qApp->installEventFilter(this);

        auto* helper = CorvaneSignalHelper::instance();
        connect(helper, &CorvaneSignalHelper::signalFilePluginAppendLog, this,
                [this](const QString& text) { Add(QStringLiteral("pane ") + text); });
        connect(
            helper, &CorvaneSignalHelper::signalConnectSuccessToFile, this,
            [this](const QString& ip, const QString& serial) { Add(QStringLiteral("told %1 %2").arg(ip, serial)); });
        connect(CorvaneRegisterHelper::instance(), &CorvaneRegisterHelper::signalCurrentMachineChanged, this,
                [this](bool connected, const QString& ip, const QString& serial) {
                    if (connected) {
                        Add(QStringLiteral("recorded %1 %2").arg(ip, serial));
                    }
                });
    }

    ~RoadWitness() override { delete m_pPanel; }

    void OpenPanel()
    {
        m_pPanel = new CSelectMachineBox(nullptr);
        connect(m_pPanel, &CSelectMachineBox::SignalGetMachineSNFinished, this,
                [this](bool ok, const QString& serial, const QString& error) {
                    Add(ok ? QStringLiteral("query true ") + serial : QStringLiteral("query false ") + error);
                });
        connect(m_pPanel, &CSelectMachineBox::SignalMachineSelected, this,
                [this] { Add(QStringLiteral("SignalMachineSelected")); });
        m_pPanel->SetIsCalibConnectMachine();
        m_pPanel->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_pPanel));
    }

    /** By the return the road has ended and its message has been answered. */
    void Connect()
    {
        CorvaneRegisterHelper::instance()->SetCurrentMachineConnectStatus(false, QString(), QString());
        m_listEvents.clear();
        m_iLongestPauseMs = 0;
        m_clock.start();
        m_beat.start();
        m_watchdog.start();
        m_heart.start();
        QTest::mouseClick(Child<QPushButton>("btnConfig"), Qt::LeftButton);
        m_watchdog.stop();
        m_heart.stop();
        m_iTookMs = m_clock.elapsed();
    }

    /** Whether the panel stands there for another try, as it does after a failure. */
    bool IsPanelUsable() const
    {
        return m_pPanel && m_pPanel->isVisible() && Child<QPushButton>("btnConfig")->isEnabled() &&
               Child<QPushButton>("btnCancel")->isEnabled() &&
               Child<QPushButton>("btnConfig")->text() == QStringLiteral("重试") &&
               Child<QLabel>("labelFailed")->isVisible();
    }

    template <typename Widget>
    Widget* Child(const char* name) const
    {
        return m_pPanel->findChild<Widget*>(QLatin1String(name));
    }

    /** What a road tells that connects. */
    static QStringList Connected(const QString& serial)
    {
        return {QStringLiteral("wait dialog"), QStringLiteral("query true ") + serial,
                QStringLiteral("recorded 192.168.7.2 ") + serial, QStringLiteral("told 192.168.7.2 ") + serial,
                QStringLiteral("message 机床连接成功！")};
    }

    /** What a road tells that fails, before the machine is asked for its serial number or by asking it. */
    static QStringList Failed(const QString& reason, bool isAsked)
    {
        QStringList events{QStringLiteral("wait dialog")};
        if (isAsked) {
            events.append(QStringLiteral("query false ") + reason);
        }
        events.append(QStringLiteral("pane ") + reason + (isAsked ? QString() : QStringLiteral(" IP: 192.168.7.2")));
        events.append(QStringLiteral("message 机床连接失败【%1】").arg(reason));
        return events;
    }

    QPointer<CSelectMachineBox> m_pPanel;
    QStringList m_listEvents;     ///< of the last road
    qint64 m_iTookMs = 0;         ///< of the last road, its message included
    qint64 m_iLongestPauseMs = 0; ///< in which the GUI thread served no timer during the last road

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::Show && qobject_cast<CProgressWidget*>(watched)) {
            Add(QStringLiteral("wait dialog"));
        } else if (event->type() == QEvent::Show && qobject_cast<CVelmarMessageBox*>(watched)) {
            // It is shown from within its constructor; the user sees it when its loop runs.
            QTimer::singleShot(0, this, [this, box = QPointer<QWidget>(static_cast<QWidget*>(watched))] {
                if (box) {
                    Answer(box);
                }
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    void Add(const QString& event) { m_listEvents.append(event); }

    void Answer(QWidget* box)
    {
        const QList<QLabel*> labels = box->findChildren<QLabel*>();
        for (const QLabel* label : labels) {
            if (label->text().contains(QStringLiteral("机床"))) {
                Add(QStringLiteral("message ") + label->text());
            }
        }
        const QList<QPushButton*> buttons = box->findChildren<QPushButton*>();
        for (QPushButton* button : buttons) {
            if (button->isVisible() && button->text() == QStringLiteral("确定")) {
                QTest::mouseClick(button, Qt::LeftButton);
                return;
            }
        }
    }

    QTimer m_watchdog;
    QTimer m_heart;
    QElapsedTimer m_clock;
    QElapsedTimer m_beat;
};

#pragma once

#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include <functional>

/** What tests of message boxes share: how to find the box that runs, and to act on it from within its run. */

constexpr int kOtherExit = 77;

using BoxAction = std::function<void(CVelmarMessageBox*)>;

inline CVelmarMessageBox* RunningBox()
{
    return qobject_cast<CVelmarMessageBox*>(QApplication::activeModalWidget());
}

/**
 * Lets @p action act on the box that is opened next, from within its run. A check that fails in it ends the box, which
 * would wait for its answer until the test is killed otherwise.
 */
inline void InNextBox(const BoxAction& action)
{
    QTimer::singleShot(0, qApp, [action] {
        const QPointer<CVelmarMessageBox> box = RunningBox();
        QVERIFY2(box, "no box is open");
        action(box);
        if (box && QTest::currentTestFailed()) {
            box->MsgExit(kOtherExit);
        }
    });
}

/** The function buttons from left to right. */
inline QList<QPushButton*> Row(const CVelmarMessageBox* box)
{
    QList<QPushButton*> row;
    const QLayout* layout = box->findChild<QHBoxLayout*>(QStringLiteral("m_layoutBtn"));
    for (int i = 0; i < layout->count(); ++i) {
        if (auto* button = qobject_cast<QPushButton*>(layout->itemAt(i)->widget())) {
            row.append(button);
        }
    }
    return row;
}

inline QPushButton* ButtonOf(const CVelmarMessageBox* box, int bit)
{
    for (QPushButton* button : Row(box)) {
        if (button->property("Function").toInt() == bit) {
            return button;
        }
    }
    return nullptr;
}

inline void SendKeyRelease(QWidget* widget, Qt::Key key)
{
    QKeyEvent event(QEvent::KeyRelease, key, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

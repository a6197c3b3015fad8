#include "TourLook.h"

#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QTabBar>
#include <QTextBrowser>

#include <algorithm>

namespace {
template <class Window>
Window* VisibleWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        auto* window = qobject_cast<Window*>(widget);
        if (window && window->isVisible()) {
            return window;
        }
    }
    return nullptr;
}

/** Visible windows, the one that has the input first. */
QList<QWidget*> Windows()
{
    QList<QWidget*> windows;
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible()) {
            windows.append(widget);
        }
    }
    std::stable_partition(windows.begin(), windows.end(),
                          [](QWidget* widget) { return widget == QApplication::activeModalWidget(); });
    return windows;
}
} // namespace

QWidget* TourLook::Find(const QString& name)
{
    for (QWidget* window : Windows()) {
        if (window->objectName() == name) {
            return window;
        }
        for (QWidget* widget : window->findChildren<QWidget*>(name)) {
            if (widget->isVisible()) {
                return widget;
            }
        }
    }
    return nullptr;
}

QString TourLook::Text(const QString& name)
{
    QWidget* widget = Find(name);
    if (auto* label = qobject_cast<QLabel*>(widget)) {
        return label->text();
    }
    if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
        return button->text();
    }
    if (auto* field = qobject_cast<QLineEdit*>(widget)) {
        return field->text();
    }
    return QString();
}

CVelmarMessageBox* TourLook::Box()
{
    auto* box = qobject_cast<CVelmarMessageBox*>(QApplication::activeModalWidget());
    return box && box->isVisible() ? box : nullptr;
}

QString TourLook::BoxTitle()
{
    auto* label = Box() ? Box()->findChild<QLabel*>(QStringLiteral("m_labelTitle")) : nullptr;
    return label && label->isVisible() ? label->text() : QString();
}

QString TourLook::BoxText()
{
    QWidget* content = Box() ? Box()->findChild<QWidget*>(QStringLiteral("widget_2")) : nullptr;
    if (!content) {
        return QString();
    }
    if (auto* browser = content->findChild<QTextBrowser*>()) {
        return browser->toPlainText();
    }
    auto* label = content->findChild<QLabel*>();
    return label ? label->text() : QString();
}

QPushButton* TourLook::BoxButton(int code)
{
    if (Box()) {
        for (QPushButton* button : Box()->findChildren<QPushButton*>()) {
            if (button->isVisible() && button->property("Function").toInt() == code) {
                return button;
            }
        }
    }
    return nullptr;
}

QPushButton* TourLook::BoxCloseButton()
{
    if (Box()) {
        for (QPushButton* button : Box()->findChildren<QPushButton*>(QString(), Qt::FindDirectChildrenOnly)) {
            if (button->isVisible()) {
                return button;
            }
        }
    }
    return nullptr;
}

QList<int> TourLook::BoxCodes()
{
    QList<int> codes;
    if (Box()) {
        for (QPushButton* button : Box()->findChildren<QPushButton*>()) {
            if (button->isVisible() && button->property("Function").isValid()) {
                codes.append(button->property("Function").toInt());
            }
        }
    }
    std::sort(codes.begin(), codes.end());
    return codes;
}

CSelectMachineBox* TourLook::Panel()
{
    return VisibleWindow<CSelectMachineBox>();
}

CProgressWidget* TourLook::Progress()
{
    return VisibleWindow<CProgressWidget>();
}

QStringList TourLook::Texts(QWidget* window)
{
    QStringList texts;
    const QList<QWidget*> widgets = window->findChildren<QWidget*>();
    for (QWidget* widget : widgets) {
        if (!widget->isVisible() || widget->objectName() == QLatin1String("titleLanguage") ||
            widget->parentWidget()->objectName() == QLatin1String("titleLanguage")) {
            continue;
        }
        texts << widget->toolTip() << widget->accessibleName() << widget->windowTitle();
        if (auto* label = qobject_cast<QLabel*>(widget)) {
            texts << label->text();
        } else if (auto* button = qobject_cast<QAbstractButton*>(widget)) {
            texts << button->text();
        } else if (auto* field = qobject_cast<QLineEdit*>(widget)) {
            texts << field->text() << field->placeholderText();
        } else if (auto* combo = qobject_cast<QComboBox*>(widget)) {
            for (int index = 0; index < combo->count(); ++index) {
                texts << combo->itemText(index);
            }
        } else if (auto* tabs = qobject_cast<QTabBar*>(widget)) {
            for (int index = 0; index < tabs->count(); ++index) {
                texts << tabs->tabText(index);
            }
        } else if (auto* view = qobject_cast<QAbstractItemView*>(widget)) {
            const QAbstractItemModel* model = view->model();
            for (int row = 0; model && row < model->rowCount(); ++row) {
                for (int column = 0; column < model->columnCount(); ++column) {
                    texts << model->index(row, column).data().toString();
                }
            }
            for (int column = 0; model && column < model->columnCount(); ++column) {
                texts << model->headerData(column, Qt::Horizontal).toString();
            }
        }
        texts << widget->property("GroupName").toString();
    }
    texts.removeAll(QString());
    return texts;
}

QString TourLook::ChineseText(QWidget* window)
{
    const QStringList texts = Texts(window);
    for (const QString& text : texts) {
        for (const QChar character : text) {
            if (character.script() == QChar::Script_Han) {
                return text;
            }
        }
    }
    return QString();
}

QColor TourLook::ScreenColor(QWidget* widget, const QPoint& position)
{
    QWidget* window = widget->window();
    const QPoint local = widget->mapTo(window, position);
    return widget->screen()->grabWindow(window->winId(), local.x(), local.y(), 1, 1).toImage().pixelColor(0, 0);
}

QString TourLook::Equal(const QString& what, const QString& seen, const QString& expected)
{
    return True(seen == expected, QStringLiteral("%1 reads \"%2\", not \"%3\"").arg(what, seen, expected));
}

QString TourLook::BeginsWith(const QString& what, const QString& seen, const QString& expected)
{
    return True(seen.startsWith(expected),
                QStringLiteral("%1 reads \"%2\", which does not begin with \"%3\"").arg(what, seen, expected));
}

QString TourLook::True(bool seen, const QString& otherwise)
{
    return seen ? QString() : otherwise + QStringLiteral("; ");
}

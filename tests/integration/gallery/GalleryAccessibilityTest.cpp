#include <examples/gallery/GalleryOptions.h>
#include <examples/gallery/GalleryWindow.h>
#include <examples/gallery/PageRegistry.h>
#include <examples/gallery/windows/PositionPanel.h>
#include <examples/gallery/windows/SimulationWindow.h>
#include <examples/gallery/windows/ToolDialog.h>

#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/menus/CCustomMenu.h>
#include <CustomControls/menus/CVelmarMenu.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <tests/support/Accessible.h>
#include <tests/support/TestMain.h>

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>
#include <QSet>
#include <QTextEdit>
#include <QTimer>

namespace {

constexpr quint16 kDiscoveryPort = 45399;

bool IsOfUse(QAccessible::Role role)
{
    static const QSet<int> roles = {
        QAccessible::Button,   QAccessible::ButtonMenu,  QAccessible::ButtonDropDown, QAccessible::CheckBox,
        QAccessible::ComboBox, QAccessible::RadioButton, QAccessible::MenuItem,       QAccessible::EditableText,
        QAccessible::SpinBox,  QAccessible::PageTab,     QAccessible::Slider,         QAccessible::Table,
        QAccessible::List,     QAccessible::Tree,
    };
    return roles.contains(role);
}

/** What the toolkit makes for itself inside a control that is told already: scroll bars, a field's icons and the like.
 */
bool IsToolkitsOwn(const QObject* object)
{
    return object && (object->objectName().startsWith(QLatin1String("qt_")) ||
                      object->inherits("QLineEditIconButton") || object->inherits("QScrollArea"));
}

/** Panels and menus that take the focus from a click alone are used through what they hold. */
bool IsReachedByTab(const QObject* object)
{
    const auto* widget = qobject_cast<const QWidget*>(object);
    // What hands the focus on to a part of itself is used through that part.
    return widget && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) && !widget->focusProxy();
}

QString Chain(const QObject* object, int length = 200)
{
    QString chain;
    for (const QObject* ancestor = object; ancestor && chain.size() < length; ancestor = ancestor->parent()) {
        chain += QStringLiteral(" < %1 '%2'")
                     .arg(QLatin1String(ancestor->metaObject()->className()), ancestor->objectName());
    }
    return chain;
}

QString Describe(QAccessibleInterface* accessible)
{
    return QStringLiteral("role %1, name '%2'%3")
        .arg(int(accessible->role()))
        .arg(accessible->text(QAccessible::Name), Chain(accessible->object()));
}

/** Walks what is visible and collects what somebody could use but not be told of. */
class Walk
{
public:
    explicit Walk(QObject* root) { Visit(QAccessible::queryAccessibleInterface(root)); }

    QStringList m_complaints;
    int m_iInteractive = 0;

private:
    void Visit(QAccessibleInterface* accessible)
    {
        if (!accessible || !accessible->isValid() || accessible->state().invisible) {
            return;
        }
        Check(accessible);
        // Rows and cells are data: as many as there are, and each is named by what it holds.
        if (accessible->tableInterface() || qobject_cast<QAbstractItemView*>(accessible->object())) {
            return;
        }
        for (int i = 0; i < accessible->childCount(); ++i) {
            Visit(accessible->child(i));
        }
    }

    void Check(QAccessibleInterface* accessible)
    {
        QAccessibleActionInterface* actions = accessible->actionInterface();
        QStringList names = actions ? actions->actionNames() : QStringList();
        names.removeAll(QAccessibleActionInterface::setFocusAction());
        const QAccessible::Role role = accessible->role();
        if (role == QAccessible::Dialog || role == QAccessible::Window || role == QAccessible::ScrollBar ||
            IsToolkitsOwn(accessible->object()) ||
            (!IsReachedByTab(accessible->object()) && names.isEmpty() && !IsOfUse(role))) {
            return;
        }
        ++m_iInteractive;
        if (accessible->text(QAccessible::Name).isEmpty()) {
            m_complaints.append(QStringLiteral("no name: ") + Describe(accessible));
        }
        if (role == QAccessible::NoRole || role == QAccessible::Client) {
            m_complaints.append(QStringLiteral("no role: ") + Describe(accessible));
        }
        if (accessible->rect().isEmpty()) {
            m_complaints.append(QStringLiteral("no size: ") + Describe(accessible));
        }
    }
};

/** Whoever types sees a caret; a field that only shows its text has none. */
bool HasCaret(const QWidget* widget)
{
    if (const auto* line = qobject_cast<const QLineEdit*>(widget)) {
        return !line->isReadOnly();
    }
    if (const auto* text = qobject_cast<const QTextEdit*>(widget)) {
        return !text->isReadOnly();
    }
    if (const auto* text = qobject_cast<const QPlainTextEdit*>(widget)) {
        return !text->isReadOnly();
    }
    return qobject_cast<const QAbstractSpinBox*>(widget);
}

bool IsEmptyList(const QWidget* widget)
{
    const auto* view = qobject_cast<const QAbstractItemView*>(widget);
    return view && (!view->model() || view->model()->rowCount() == 0);
}

/** Gives the keyboard to each thing in the window that Tab reaches, and collects what looks the same then. */
class FocusWalk
{
public:
    explicit FocusWalk(QWidget* window)
    {
        window->setAttribute(Qt::WA_KeyboardFocusChange); // as the first press of Tab does
        const QList<QPointer<QWidget>> widgets = Pointers(window->findChildren<QWidget*>());
        for (const QPointer<QWidget>& widget : widgets) {
            // An empty list has no row to show it on; a CXCombobox looks the same with the focus by the product's own
            // choice.
            if (widget && widget->window() == window && widget->isVisible() && !widget->visibleRegion().isEmpty() &&
                IsReachedByTab(widget) && !HasCaret(widget) && !widget->inherits("CXCombobox") &&
                !IsEmptyList(widget)) {
                Check(widget);
            }
        }
    }

    QStringList m_complaints;
    int m_iChecked = 0;

private:
    static QList<QPointer<QWidget>> Pointers(const QList<QWidget*>& widgets)
    {
        return QList<QPointer<QWidget>>(widgets.begin(), widgets.end());
    }

    void Check(QWidget* widget)
    {
        widget->setFocus(Qt::MouseFocusReason);
        widget->clearFocus();
        const QImage without = widget->grab().toImage();
        widget->setFocus(Qt::TabFocusReason);
        const bool taken = widget->hasFocus();
        const QImage with = widget->grab().toImage();
        widget->clearFocus();
        if (!taken) {
            m_complaints.append(QStringLiteral("takes no focus: ") + Chain(widget, 50));
        } else if (with == without) {
            m_complaints.append(QStringLiteral("shows no focus: ") + Chain(widget, 50));
        }
        ++m_iChecked;
    }
};

#define VERIFY_WALK(walk)                                                                                              \
    QVERIFY2((walk).m_complaints.isEmpty(),                                                                            \
             qPrintable(QStringLiteral("\n") + (walk).m_complaints.join(QLatin1Char('\n'))))

} // namespace

/** Nothing in the gallery that somebody can use is without a name and a role. */
class GalleryAccessibilityTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void walkFindsWhatIsMissing()
    {
        QWidget window;
        auto* unnamed = new QPushButton(&window);
        window.show();
        Walk first(&window);
        QCOMPARE(first.m_complaints.size(), 1);
        QVERIFY(first.m_complaints.at(0).startsWith(QLatin1String("no name")));
        unnamed->setAccessibleName(QStringLiteral("x"));
        VERIFY_WALK(Walk(&window));
        unnamed->resize(0, 0);
        QVERIFY(Walk(&window).m_complaints.value(0).startsWith(QLatin1String("no size")));
        unnamed->hide();
        QWidget roleless(&window);
        roleless.setFocusPolicy(Qt::StrongFocus);
        roleless.setAccessibleName(QStringLiteral("x"));
        roleless.show();
        QVERIFY(Walk(&window).m_complaints.value(0).startsWith(QLatin1String("no role")));
    }

    void everyPageCanBeTold_data()
    {
        QTest::addColumn<QString>("page");
        for (const PageEntry& page : GalleryPages()) {
            QTest::newRow(qPrintable(page.strName)) << page.strName;
        }
    }

    void everyPageCanBeTold()
    {
        QFETCH(QString, page);
        GalleryOptions options;
        options.iDiscoveryPort = kDiscoveryPort;
        GalleryWindow window(options);
        QVERIFY(window.OpenPage(page));
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        // Title bar, ribbon and page list come with each page.
        Walk walk(&window);
        VERIFY_WALK(walk);
        QVERIFY2(walk.m_iInteractive > 20, qPrintable(QString::number(walk.m_iInteractive)));

        const QList<CCustomMenu*> menus = window.findChildren<CCustomMenu*>();
        for (CCustomMenu* menu : menus) {
            menu->show();
            if (!menu->isVisible()) {
                continue; // of a page that is not the one in front
            }
            Walk rows(menu);
            VERIFY_WALK(rows);
            QVERIFY(rows.m_iInteractive > 0 || menu->MenuButtonCount() == 0);
            menu->hide();
        }
        const QList<CVelmarMenu*> lists = window.findChildren<CVelmarMenu*>();
        for (CVelmarMenu* list : lists) {
            list->show();
            VERIFY_WALK(Walk(list));
            list->hide();
        }
    }

    void focusWalkFindsWhatLooksTheSame()
    {
        QWidget window;
        auto* plain = new QWidget(&window);
        plain->setFocusPolicy(Qt::StrongFocus);
        plain->resize(20, 20);
        (new QPushButton(QStringLiteral("x"), &window))->move(40, 0);
        (new QLineEdit(&window))->move(0, 40);
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        const FocusWalk walk(&window);
        QCOMPARE(walk.m_iChecked, 2);
        QCOMPARE(walk.m_complaints.size(), 1);
        QVERIFY(walk.m_complaints.at(0).startsWith(QLatin1String("shows no focus:  < QWidget")));
    }

    void everyPageShowsWhereTheKeyboardIs()
    {
        GalleryOptions options;
        options.iDiscoveryPort = kDiscoveryPort;
        GalleryWindow window(options);
        window.resize(1280, 3000); // what is scrolled out of sight is not looked at
        window.show();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        QStringList complaints;
        for (const PageEntry& page : GalleryPages()) {
            QVERIFY(window.OpenPage(page.strName));
            QCoreApplication::processEvents();
            const FocusWalk walk(&window);
            for (const QString& complaint : walk.m_complaints) {
                if (!complaints.contains(complaint)) {
                    complaints.append(complaint);
                }
            }
            QVERIFY2(walk.m_iChecked > 10, qPrintable(page.strName));
        }
        for (const QString& complaint : complaints) {
            qWarning("%s", qPrintable(complaint)); // each for itself: a failure's own text is cut
        }
        QVERIFY(complaints.isEmpty());
    }

    void everyWindowShowsWhereTheKeyboardIs()
    {
        SimulationWindow simulation(nullptr);
        ToolDialog dialog(nullptr);
        PositionPanel panel;
        for (QWidget* window :
             {static_cast<QWidget*>(&simulation), static_cast<QWidget*>(&dialog), static_cast<QWidget*>(&panel)}) {
            window->show();
            window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window));
            const FocusWalk walk(window);
            VERIFY_WALK(walk);
        }
    }

    void everyWindowCanBeTold()
    {
        SimulationWindow simulation(nullptr);
        simulation.show();
        VERIFY_WALK(Walk(&simulation));
        ToolDialog dialog(nullptr);
        dialog.show();
        VERIFY_WALK(Walk(&dialog));
        PositionPanel panel;
        panel.show();
        VERIFY_WALK(Walk(&panel));
    }

    void everyBoxCanBeTold()
    {
        QTimer::singleShot(0, this, [] {
            const QPointer<QWidget> box = QApplication::activeModalWidget();
            QVERIFY(box);
            Walk walk(box);
            static_cast<CVelmarMessageBox*>(box.data())->MsgExit(0);
            VERIFY_WALK(walk);
            QVERIFY(walk.m_iInteractive >= 4);
        });
        CVelmarMessageBox::ShowWindowWithCheckBox(nullptr, MsgBtnYes | MsgBtnNo | MsgBtnCancel, MsgIconPop1,
                                                  QStringLiteral("提示"), QStringLiteral("保存？"),
                                                  QStringLiteral("不再提示"), false, {});
        CProgressWidget progress;
        progress.setProText(QStringLiteral("正在计算"), QStringLiteral("计算"));
        progress.show();
        VERIFY_WALK(Walk(&progress));
        QVERIFY(QTest::qWaitForWindowActive(&progress));
        VERIFY_WALK(FocusWalk(&progress));
        progress.hide();
        const QPointer<CSelectMachineBox> panel = new CSelectMachineBox(nullptr);
        panel->show();
        VERIFY_WALK(Walk(panel));
        QVERIFY(QTest::qWaitForWindowActive(panel));
        VERIFY_WALK(FocusWalk(panel));
        panel->SetIsCalibConnectMachine();
        VERIFY_WALK(Walk(panel));
        panel->close();
    }
};

CUSTOMCONTROLS_TEST_MAIN(GalleryAccessibilityTest)

#include "GalleryAccessibilityTest.moc"

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
#include <QPointer>
#include <QPushButton>
#include <QSet>
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

QString Describe(QAccessibleInterface* accessible)
{
    const QObject* object = accessible->object();
    QString chain;
    for (const QObject* ancestor = object; ancestor && chain.size() < 200; ancestor = ancestor->parent()) {
        chain += QStringLiteral(" < %1 '%2'")
                     .arg(QLatin1String(ancestor->metaObject()->className()), ancestor->objectName());
    }
    return QStringLiteral("role %1, name '%2'%3")
        .arg(int(accessible->role()))
        .arg(accessible->text(QAccessible::Name), chain);
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
        progress.hide();
        const QPointer<CSelectMachineBox> panel = new CSelectMachineBox(nullptr);
        panel->show();
        VERIFY_WALK(Walk(panel));
        panel->SetIsCalibConnectMachine();
        VERIFY_WALK(Walk(panel));
        panel->close();
    }
};

CUSTOMCONTROLS_TEST_MAIN(GalleryAccessibilityTest)

#include "GalleryAccessibilityTest.moc"

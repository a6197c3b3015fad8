#include <CustomControls/tables/CDelegateLineEdit.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

#include <QLineEdit>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTableView>
#include <QValidator>

#include <memory>

class CDelegateLineEditTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void rootIsTheTopmostWidgetAboveTheParent();
    void editorLooksAsPrescribed();
    void editorKeepsItsInsetFromTheCell();
    void loadingShowsTheTextAndRemembersIt();
    void loadingShowsAlsoWhatThePatternForbids();
    void loadingActivatesTheWindowOfTheEditor();
    void everyLoadingGivesACheckOfItsOwn();
    void patternDecidesWhatIsAcceptable_data();
    void patternDecidesWhatIsAcceptable();
    void storingWritesTextOfSixDigits_data();
    void storingWritesTextOfSixDigits();
    void storingEmitsNothing();
    void returnEmitsTheFullValue();
    void returnOnAnUnacceptableTextEmitsNothing();
    void focusLossWritesTheModelAndEmitsNothing();
    void openingTwiceLeavesTwoEditorsBehind();
    void nullAndForeignEditorsAreLeftAlone();

private:
    QList<QLineEdit*> Editors() const { return m_pView->viewport()->findChildren<QLineEdit*>(); }
    QLineEdit* Load(const QString& text);

    std::unique_ptr<QStandardItemModel> m_pModel;
    std::unique_ptr<QTableView> m_pView;
    CDelegateLineEdit* m_pDelegate = nullptr;
};

void CDelegateLineEditTest::init()
{
    m_pModel = std::make_unique<QStandardItemModel>(2, 2);
    m_pView = std::make_unique<QTableView>();
    m_pView->setModel(m_pModel.get());
    m_pDelegate = new CDelegateLineEdit(m_pView.get());
    m_pView->setItemDelegate(m_pDelegate);
    m_pView->show();
    m_pView->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_pView.get()));
}

void CDelegateLineEditTest::cleanup()
{
    m_pView.reset();
    m_pModel.reset();
}

QLineEdit* CDelegateLineEditTest::Load(const QString& text)
{
    m_pModel->setData(m_pModel->index(0, 0), text, Qt::EditRole);
    auto* edit = qobject_cast<QLineEdit*>(m_pDelegate->createEditor(m_pView->viewport(), {}, {}));
    m_pDelegate->setEditorData(edit, m_pModel->index(0, 0));
    return edit;
}

void CDelegateLineEditTest::rootIsTheTopmostWidgetAboveTheParent()
{
    QWidget root;
    auto* middle = new QWidget(&root);
    auto* leaf = new QWidget(middle);
    QCOMPARE(CDelegateLineEdit(leaf).m_pRootWidget, &root);
    QCOMPARE(CDelegateLineEdit(&root).m_pRootWidget, &root);
    QCOMPARE(CDelegateLineEdit(nullptr).m_pRootWidget, nullptr);
    QObject plain;
    QCOMPARE(CDelegateLineEdit(&plain).m_pRootWidget, nullptr);
}

void CDelegateLineEditTest::editorLooksAsPrescribed()
{
    const auto* edit = qobject_cast<QLineEdit*>(m_pDelegate->createEditor(m_pView->viewport(), {}, {}));
    QVERIFY(edit);
    QCOMPARE(edit->parentWidget(), m_pView->viewport());
    QCOMPARE(edit->font().pixelSize(), FontCnMedium_13.pixelSize());
    QCOMPARE(edit->font().weight(), FontCnMedium_13.weight());
    QCOMPARE(edit->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(edit->focusPolicy(), Qt::StrongFocus);
    QVERIFY(!edit->hasFrame());
    QCOMPARE(edit->styleSheet(),
             QStringLiteral("border-left:1px solid #5f5f5f;border-top:1px solid #5f5f5f;border-right:1px solid #5f5f5f;"
                            "border-bottom:1px solid #5f5f5f;border-radius:4px;background-color:#eeeeee;"
                            "padding-left:2px;"));
}

void CDelegateLineEditTest::editorKeepsItsInsetFromTheCell()
{
    QLineEdit edit;
    QStyleOptionViewItem option;
    option.rect = QRect(30, 40, 100, 50);
    m_pDelegate->updateEditorGeometry(&edit, option, {});
    QCOMPARE(edit.geometry(), QRect(QPoint(30, 50), QPoint(120, 80)));
    m_pDelegate->updateEditorGeometry(nullptr, option, {});
}

void CDelegateLineEditTest::loadingShowsTheTextAndRemembersIt()
{
    QLineEdit* edit = Load(QStringLiteral("12.5"));
    QCOMPARE(edit->text(), QStringLiteral("12.5"));
    QCOMPARE(CDelegateLineEdit::s_strEditorText, QStringLiteral("12.5"));
    QCOMPARE(CDelegateLineEdit::s_pEditor, edit);
}

void CDelegateLineEditTest::loadingShowsAlsoWhatThePatternForbids()
{
    QCOMPARE(Load(QStringLiteral("12345.6"))->text(), QStringLiteral("12345.6"));
    QCOMPARE(Load(QStringLiteral("abc"))->text(), QStringLiteral("abc"));
}

void CDelegateLineEditTest::loadingActivatesTheWindowOfTheEditor()
{
    QWidget other;
    other.show();
    other.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&other));
    QVERIFY(!m_pView->isActiveWindow());
    Load(QStringLiteral("1"));
    QVERIFY(QTest::qWaitForWindowActive(m_pView.get()));
}

void CDelegateLineEditTest::everyLoadingGivesACheckOfItsOwn()
{
    QLineEdit* edit = Load(QStringLiteral("1"));
    const QPointer<const QValidator> first(edit->validator());
    QVERIFY(first);
    QCOMPARE(first->parent(), nullptr);
    m_pDelegate->setEditorData(edit, m_pModel->index(0, 0));
    QVERIFY(edit->validator() != first);
    QVERIFY(first);
}

void CDelegateLineEditTest::patternDecidesWhatIsAcceptable_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("acceptable");
    for (const char* text : {"-12.5", "123.4567", "0", "-0", "999", "-999.9999", "1.2"}) {
        QTest::newRow(text) << QString::fromLatin1(text) << true;
    }
    for (const char* text : {"1234", "1.23456", "", "-", "1.", ".5", "+1", "1,5", "1e2", " 1", "--1"}) {
        QTest::newRow(*text ? text : "empty") << QString::fromLatin1(text) << false;
    }
}

void CDelegateLineEditTest::patternDecidesWhatIsAcceptable()
{
    QFETCH(QString, text);
    QFETCH(bool, acceptable);
    QLineEdit* edit = Load(QString());
    edit->setText(text);
    QCOMPARE(edit->hasAcceptableInput(), acceptable);
}

void CDelegateLineEditTest::storingWritesTextOfSixDigits_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<QString>("stored");
    QTest::newRow("rounded") << "123.4567"
                             << "123.457";
    QTest::newRow("negative") << "-12.5"
                              << "-12.5";
    QTest::newRow("zeros go") << "007.5000"
                              << "7.5";
    QTest::newRow("no number") << "abc"
                               << "0";
    QTest::newRow("empty") << ""
                           << "0";
    QTest::newRow("beyond six digits") << "1234567"
                                       << "1.23457e+06";
}

void CDelegateLineEditTest::storingWritesTextOfSixDigits()
{
    QFETCH(QString, typed);
    QFETCH(QString, stored);
    QLineEdit* edit = Load(QStringLiteral("1"));
    edit->setText(typed);
    const QModelIndex index = m_pModel->index(1, 1);
    m_pDelegate->setModelData(edit, m_pModel.get(), index);
    QCOMPARE(index.data(Qt::EditRole), QVariant(stored));
    QCOMPARE(index.data(Qt::EditRole).typeId(), int(QMetaType::QString));
}

void CDelegateLineEditTest::storingEmitsNothing()
{
    const QSignalSpy spy(m_pDelegate, &CDelegateLineEdit::SignalDataChanged);
    m_pDelegate->setModelData(Load(QStringLiteral("1")), m_pModel.get(), m_pModel->index(0, 0));
    QCOMPARE(spy.count(), 0);
}

void CDelegateLineEditTest::returnEmitsTheFullValue()
{
    const QSignalSpy spy(m_pDelegate, &CDelegateLineEdit::SignalDataChanged);
    const QModelIndex index = m_pModel->index(0, 0);
    m_pView->edit(index);
    QLineEdit* edit = Editors().constLast();
    edit->selectAll();
    QTest::keyClicks(edit, QStringLiteral("123.4567"));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(spy.count(), 1);
    QCOMPARE(spy.at(0).at(0).toDouble(), 123.4567);
    QTRY_COMPARE(index.data(Qt::EditRole).toString(), QStringLiteral("123.457"));
}

void CDelegateLineEditTest::returnOnAnUnacceptableTextEmitsNothing()
{
    const QSignalSpy spy(m_pDelegate, &CDelegateLineEdit::SignalDataChanged);
    QLineEdit* edit = Load(QStringLiteral("12"));
    edit->setText(QStringLiteral("12."));
    QTest::keyClick(edit, Qt::Key_Return);
    QCOMPARE(spy.count(), 0);
}

void CDelegateLineEditTest::focusLossWritesTheModelAndEmitsNothing()
{
    const QSignalSpy spy(m_pDelegate, &CDelegateLineEdit::SignalDataChanged);
    const QModelIndex index = m_pModel->index(0, 0);
    m_pView->edit(index);
    QLineEdit* edit = Editors().constLast();
    QTRY_VERIFY(edit->hasFocus());
    edit->setText(QStringLiteral("42.5"));
    m_pView->setFocus();
    QTRY_COMPARE(index.data(Qt::EditRole).toString(), QStringLiteral("42.5"));
    QCOMPARE(spy.count(), 0);
}

void CDelegateLineEditTest::openingTwiceLeavesTwoEditorsBehind()
{
    for (int i = 0; i < 2; ++i) {
        m_pView->edit(m_pModel->index(0, 0));
        QLineEdit* edit = Editors().constLast();
        QTRY_VERIFY(edit->isVisible());
        QTest::keyClick(edit, Qt::Key_Escape);
        QTRY_VERIFY(edit->isHidden());
    }
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(Editors().size(), 2);
}

void CDelegateLineEditTest::nullAndForeignEditorsAreLeftAlone()
{
    const QModelIndex index = m_pModel->index(0, 0);
    m_pModel->setData(index, QStringLiteral("7"), Qt::EditRole);
    Load(QStringLiteral("7"));
    QWidget foreign;
    for (QWidget* editor : {static_cast<QWidget*>(nullptr), &foreign}) {
        m_pDelegate->setEditorData(editor, index);
        m_pDelegate->setModelData(editor, m_pModel.get(), index);
        m_pDelegate->destroyEditor(editor, index);
    }
    QLineEdit edit;
    m_pDelegate->setModelData(&edit, nullptr, index);
    QCOMPARE(index.data(Qt::EditRole).toString(), QStringLiteral("7"));
    QCOMPARE(CDelegateLineEdit::s_strEditorText, QStringLiteral("7"));
    m_pDelegate->setEditorData(&edit, QModelIndex());
    QCOMPARE(edit.text(), QString());
}

CUSTOMCONTROLS_TEST_MAIN(CDelegateLineEditTest)
#include "CDelegateLineEditTest.moc"

#include <CustomControls/tables/CVelmarTableView.h>

#include <CustomControls/tables/CDelegateLineEdit.h>
#include <CustomControls/tables/CDelegateTableViewItem.h>

#include <CorvaneBase/CorvaneFonts.h>

#include <tests/support/TestMain.h>

#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPixmapCache>
#include <QPointer>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTranslator>

#include <array>
#include <cstddef>
#include <limits>
#include <memory>
#include <type_traits>

namespace {

const QColor kBlack(0, 0, 0, 255);
const QColor kGrey(196, 196, 196, 255);

struct TypeRow
{
    int iType;
    const char* szPicture;
    const char* szName;
};
const TypeRow kTypes[] = {
    {0, "img_home_tool_jiaodao.png", "铰刀"},
    {1, "img_home_tool_pingdixidao.png", "立铣刀"},
    {2, "img_home_tool_ptxd_bk.png", "避空立铣刀"},
    {3, "img_home_tool_qiudao.png", "球头铣刀"},
    {4, "img_home_tool_qiudao_bk.png", "避空球头铣刀"},
    {5, "img_home_tool_yuanbixidao.png", "圆鼻铣刀"},
    {6, "img_home_tool_daojiaodao.png", "锥刀"},
    {7, "img_home_tool_zhuiduqiutoudao.png", "锥度球头铣刀"},
    {8, "img_home_tool_pingdixidao.png", "立铣刀"},
    {-1, "img_home_tool_pingdixidao.png", "立铣刀"},
    {std::numeric_limits<int>::max(), "img_home_tool_pingdixidao.png", "立铣刀"},
    {std::numeric_limits<int>::min(), "img_home_tool_pingdixidao.png", "立铣刀"},
};

/** Records 0 to 6; record 0 is of a type that no row has, so that it would show. */
QList<ToolRecord> FullList(const std::array<int, 6>& types = {1, 3, 2, 7, 1, 5})
{
    QList<ToolRecord> list{{6, 111.0, 11.0}};
    for (int row = 0; row < 6; ++row) {
        list.append({types[size_t(row)], 50.0 + row, 3.0 + row});
    }
    return list;
}

QColor ColorOf(const QAbstractItemModel* model, int row, int column)
{
    return model->index(row, column).data(Qt::ForegroundRole).value<QColor>();
}

/** Puts brackets around the texts of one context. */
class Brackets : public QTranslator
{
public:
    explicit Brackets(const char* context)
        : m_szContext(context)
    {
        QCoreApplication::installTranslator(this);
    }
    ~Brackets() override { QCoreApplication::removeTranslator(this); }
    Q_DISABLE_COPY_MOVE(Brackets)

    QString translate(const char* context, const char* source, const char*, int) const override
    {
        return qstrcmp(context, m_szContext) == 0 ? QLatin1Char('[') + QString::fromUtf8(source) + QLatin1Char(']')
                                                  : QString();
    }
    bool isEmpty() const override { return false; }

private:
    const char* m_szContext;
};

} // namespace

class CVelmarTableViewTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();

    void viewIsSetUpAsPrescribed();
    void headersAreSetUpAsPrescribed();
    void columnsAndRowsHaveTheirSizes();
    void largeFontLeavesTheSizes();
    void newTableShowsSixSampleTypes();
    void numberAndTypeAreNotEdited();
    void frameIsHiddenAtFirst();
    void delegatesServeTheirColumns();
    void textsAreTranslatedInTheContextOfTheBase();

    void typeHasItsPictureAndName_data();
    void typeHasItsPictureAndName();
    void missingPictureLeavesTheRowWithItsName();
    void typeIsPaintedWithItsPicture();
    void modeAndTypeDecideWhatIsEligible_data();
    void modeAndTypeDecideWhatIsEligible();
    void listFillsRowsFromItsSecondRecord();
    void numbersHaveSixDigits_data();
    void numbersHaveSixDigits();
    void ineligibleRowStaysEditable();
    void shortListLeavesRowsEmpty_data();
    void shortListLeavesRowsEmpty();
    void rowThatWasEmptyIsFilledAgain();
    void longListIsCutToSixRows();
    void listIsKeptAsItWasGiven();
    void listMayChangeWhileItIsWritten();

    void selectRowPutsTheFrame_data();
    void selectRowPutsTheFrame();
    void selectRowIgnoresRowsThatAreNone_data();
    void selectRowIgnoresRowsThatAreNone();
    void selectRowAsksNotForTheType();
    void frameIsPaintedOverItsRow();
    void frameLetsTheMouseThrough();
    void frameFollowsEligibleTools_data();
    void frameFollowsEligibleTools();
    void clickOnIneligibleToolMovesOnlyTheCurrentIndex();
    void arrowKeysMoveTheFrame();
    void newListLeavesTheFrame();
    void currentToolIsTheRecordOfTheFrame();
    void currentToolWithoutRecordIsEmpty();
    void invalidIndexLeavesTheFrame();

    void doubleClickEditsTheMeasuresOnly_data();
    void doubleClickEditsTheMeasuresOnly();
    void returnStoresTheNumber();
    void escapeKeepsTheNumber();
    void tabGoesOnToTheNextMeasure();
    void viewMayGoWhileItIsEdited();
    void recordIsCopiedBytewise();

private:
    QString TextAt(int row, int column) const { return m_pView->m_pModel->item(row, column)->text(); }
    QPoint CellCenter(int row, int column) const
    {
        return m_pView->visualRect(m_pView->m_pModel->index(row, column)).center();
    }
    void Click(int row, int column = 0)
    {
        QTest::mouseClick(m_pView->viewport(), Qt::LeftButton, Qt::NoModifier, CellCenter(row, column));
    }
    void DoubleClick(int row, int column)
    {
        Click(row, column);
        QTest::mouseDClick(m_pView->viewport(), Qt::LeftButton, Qt::NoModifier, CellCenter(row, column));
    }
    /** The editor that is open now. */
    QLineEdit* Editor() const;
    void Fill(bool ballMode, QList<ToolRecord> list);

    std::unique_ptr<CVelmarTableView> m_pView;
};

void CVelmarTableViewTest::init()
{
    m_pView = std::make_unique<CVelmarTableView>(nullptr, false);
    m_pView->show();
    m_pView->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_pView.get()));
}

void CVelmarTableViewTest::cleanup()
{
    m_pView.reset();
}

QLineEdit* CVelmarTableViewTest::Editor() const
{
    for (QLineEdit* edit : m_pView->viewport()->findChildren<QLineEdit*>()) {
        if (edit->isVisible()) {
            return edit;
        }
    }
    return nullptr;
}

void CVelmarTableViewTest::Fill(bool ballMode, QList<ToolRecord> list)
{
    m_pView->m_bBallMode = ballMode;
    m_pView->SetToolList(list);
}

void CVelmarTableViewTest::viewIsSetUpAsPrescribed()
{
    QCOMPARE(m_pView->model(), m_pView->m_pModel);
    QCOMPARE(m_pView->m_pModel->parent(), m_pView.get());
    QCOMPARE(m_pView->m_pModel->columnCount(), 4);
    QCOMPARE(m_pView->m_pModel->rowCount(), 6);
    QCOMPARE(m_pView->minimumSize(), QSize(352, 248));
    QCOMPARE(m_pView->maximumSize(), QSize(352, 248));
    QCOMPARE(m_pView->styleSheet(), QStringLiteral("QTableView{outline:none;border:none;background-color:rgb(239,239,"
                                                   "239);alternate-background-color:rgb(246,246,246);}"));
    QVERIFY(!m_pView->showGrid());
    QCOMPARE(m_pView->selectionBehavior(), QAbstractItemView::SelectRows);
    QCOMPARE(m_pView->selectionMode(), QAbstractItemView::NoSelection);
    QCOMPARE(m_pView->focusPolicy(), Qt::ClickFocus);
    QCOMPARE(m_pView->editTriggers(), QAbstractItemView::DoubleClicked);
    QVERIFY(m_pView->alternatingRowColors());
    QCOMPARE(m_pView->iconSize(), QSize(76, 36));
    QCOMPARE(m_pView->currentIndex(), m_pView->m_pModel->index(0, 0));
    QCOMPARE(m_pView->m_iCurrentRow, 0);
    QVERIFY(m_pView->m_listTool.isEmpty());
    QVERIFY(CVelmarTableView(nullptr, true).m_bBallMode);
    QVERIFY(!m_pView->m_bBallMode);
    QWidget parent;
    QCOMPARE((new CVelmarTableView(&parent, true))->parentWidget(), &parent);
}

void CVelmarTableViewTest::headersAreSetUpAsPrescribed()
{
    const QHeaderView* header = m_pView->horizontalHeader();
    const char* labels[] = {"位置", "类型", "直径", "长度"};
    for (int column = 0; column < 4; ++column) {
        QCOMPARE(m_pView->m_pModel->headerData(column, Qt::Horizontal).toString(), QString::fromUtf8(labels[column]));
    }
    QCOMPARE(header->defaultAlignment(), Qt::AlignHCenter | Qt::AlignVCenter);
    QCOMPARE(header->styleSheet(),
             QStringLiteral("QHeaderView::section{background-color:rgba(246,246,246,1);color:rgba(153,153,153,1);"
                            "border:none;/*padding-left:10px;*/}"));
    QCOMPARE(header->font(), FontCnBold_14);
    QCOMPARE(header->minimumHeight(), 32);
    QCOMPARE(header->maximumHeight(), 32);
    QVERIFY(m_pView->verticalHeader()->isHidden());
}

void CVelmarTableViewTest::columnsAndRowsHaveTheirSizes()
{
    const int widths[] = {30, 176, 55, 85};
    for (int column = 0; column < 4; ++column) {
        QCOMPARE(m_pView->columnWidth(column), widths[column]);
    }
    for (int row = 0; row < 6; ++row) {
        QCOMPARE(m_pView->rowHeight(row), 36);
    }
    // Header and rows fit, so nothing scrolls.
    QCOMPARE(m_pView->viewport()->geometry(), QRect(0, 32, 352, 216));
}

void CVelmarTableViewTest::largeFontLeavesTheSizes()
{
    const QFont before = QApplication::font();
    QFont large = before;
    large.setPixelSize(60);
    QApplication::setFont(large);
    const CVelmarTableView view(nullptr, false);
    QApplication::setFont(before);
    QCOMPARE(view.columnWidth(0), 30);
    QCOMPARE(view.rowHeight(0), 36);
}

void CVelmarTableViewTest::newTableShowsSixSampleTypes()
{
    const QStandardItemModel* model = m_pView->m_pModel;
    for (int row = 0; row < 6; ++row) {
        const QStandardItem* number = model->item(row, 0);
        QCOMPARE(number->text(), QString::number(row + 1));
        QCOMPARE(number->textAlignment(), Qt::AlignCenter);
        QCOMPARE(number->font(), FontCnBold_14);
        QCOMPARE(number->foreground(), QBrush(QColor(51, 51, 51, 255), Qt::SolidPattern));

        const QStandardItem* type = model->item(row, 1);
        QCOMPARE(type->text(), QString::fromUtf8(kTypes[row].szName));
        QCOMPARE(type->icon().pixmap(60, 28).toImage(),
                 QIcon(QStringLiteral(":/icon/selectbox/tool/") + QLatin1String(kTypes[row].szPicture))
                     .pixmap(60, 28)
                     .toImage());
        QCOMPARE(type->font(), FontCnMedium_14);
        QCOMPARE(ColorOf(model, row, 1), kBlack);

        QCOMPARE(TextAt(row, 2), QStringLiteral("⌀4"));
        QCOMPARE(TextAt(row, 3), QStringLiteral("50"));
        for (int column = 2; column < 4; ++column) {
            QCOMPARE(model->item(row, column)->textAlignment(), Qt::AlignCenter);
            QCOMPARE(model->item(row, column)->font(), FontCnMedium_14);
            QCOMPARE(ColorOf(model, row, column), kBlack);
        }
    }
}

void CVelmarTableViewTest::numberAndTypeAreNotEdited()
{
    for (const bool filled : {false, true}) {
        if (filled) {
            Fill(false, FullList());
        }
        for (int row = 0; row < 6; ++row) {
            for (int column = 0; column < 4; ++column) {
                QCOMPARE(m_pView->m_pModel->item(row, column)->isEditable(), column >= 2);
            }
        }
    }
}

void CVelmarTableViewTest::frameIsHiddenAtFirst()
{
    const QLabel* frame = m_pView->m_pOverlay;
    QCOMPARE(frame->parentWidget(), m_pView.get());
    QVERIFY(frame->isHidden());
    QCOMPARE(frame->minimumSize(), QSize(347, 34));
    QCOMPARE(frame->maximumSize(), QSize(347, 34));
    QVERIFY(frame->testAttribute(Qt::WA_TransparentForMouseEvents));
    QCOMPARE(frame->styleSheet(),
             QStringLiteral("background: transparent;border: 2px solid rgb(23, 160, 97);image: "
                            "url(:/icon/toolbtn/icon_scanning_checked.png);padding-left: 329px;padding-bottom: 15px;"
                            "border-radius:4px;"));
}

void CVelmarTableViewTest::delegatesServeTheirColumns()
{
    QCOMPARE(m_pView->itemDelegateForColumn(1), m_pView->m_pItemDelegate);
    QCOMPARE(m_pView->itemDelegateForColumn(2), m_pView->m_pLineDelegate);
    QCOMPARE(m_pView->itemDelegateForColumn(3), m_pView->m_pLineDelegate);
    QVERIFY(!m_pView->itemDelegateForColumn(0));
    QCOMPARE(m_pView->m_pLineDelegate->parent(), m_pView.get());
    QCOMPARE(m_pView->m_pItemDelegate->parent(), m_pView.get());
}

void CVelmarTableViewTest::textsAreTranslatedInTheContextOfTheBase()
{
    const Brackets brackets("QTableView");
    CVelmarTableView view(nullptr, false);
    const char* labels[] = {"[位置]", "[类型]", "[直径]", "[长度]"};
    for (int column = 0; column < 4; ++column) {
        QCOMPARE(view.m_pModel->headerData(column, Qt::Horizontal).toString(), QString::fromUtf8(labels[column]));
    }
    QCOMPARE(view.GetToolName(3), QStringLiteral("[球头铣刀]"));
    QCOMPARE(view.m_pModel->item(0, 1)->text(), QStringLiteral("[铰刀]"));
}

void CVelmarTableViewTest::typeHasItsPictureAndName_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("name");
    for (const TypeRow& row : kTypes) {
        QTest::addRow("%d", row.iType) << row.iType
                                       << QStringLiteral(":/icon/selectbox/tool/") + QLatin1String(row.szPicture)
                                       << QString::fromUtf8(row.szName);
    }
}

void CVelmarTableViewTest::typeHasItsPictureAndName()
{
    QFETCH(const int, type);
    QFETCH(const QString, picture);
    QFETCH(const QString, name);
    QCOMPARE(m_pView->GetToolIconPath(type), picture);
    QCOMPARE(m_pView->GetToolName(type), name);
    QVERIFY(!QImage(picture).isNull());

    Fill(false, FullList({type, type, type, type, type, type}));
    for (int row = 0; row < 6; ++row) {
        QCOMPARE(TextAt(row, 1), name);
        QCOMPARE(m_pView->m_pModel->item(row, 1)->icon().pixmap(60, 28).toImage(),
                 QIcon(picture).pixmap(60, 28).toImage());
    }
}

void CVelmarTableViewTest::missingPictureLeavesTheRowWithItsName()
{
    Q_CLEANUP_RESOURCE(CustomControls);
    QPixmapCache::clear();
    Fill(false, FullList());
    const QImage image = m_pView->grab().toImage();
    Q_INIT_RESOURCE(CustomControls);
    QVERIFY(!image.isNull());
    QCOMPARE(TextAt(0, 1), QStringLiteral("立铣刀"));
    QVERIFY(m_pView->m_pModel->item(0, 1)->icon().pixmap(60, 28).isNull());
}

void CVelmarTableViewTest::typeIsPaintedWithItsPicture()
{
    Fill(false, FullList());
    const QRect cell = m_pView->visualRect(m_pView->m_pModel->index(0, 1));
    const QImage image = m_pView->viewport()->grab(cell).toImage();
    m_pView->m_pModel->item(0, 1)->setIcon(QIcon());
    m_pView->m_pModel->item(0, 1)->setText(QString());
    const QImage ground = m_pView->viewport()->grab(cell).toImage();
    // The picture of 60 pixels ends 5 pixels left of the middle, the name begins 5 pixels right of it.
    const auto differs = [&](int left, int right) {
        for (int x = left; x < right; ++x) {
            for (int y = 0; y < image.height(); ++y) {
                if (image.pixel(x, y) != ground.pixel(x, y)) {
                    return true;
                }
            }
        }
        return false;
    };
    QVERIFY(!differs(0, 88 - 5 - 62));
    QVERIFY(differs(88 - 5 - 60, 88 - 6));
    QVERIFY(!differs(88 - 4, 88 + 4));
    QVERIFY(differs(88 + 5, 176));
}

void CVelmarTableViewTest::modeAndTypeDecideWhatIsEligible_data()
{
    QTest::addColumn<bool>("ballMode");
    QTest::addColumn<int>("type");
    QTest::addColumn<bool>("eligible");
    for (const bool ballMode : {false, true}) {
        for (const TypeRow& row : kTypes) {
            const bool eligible = ballMode ? row.iType == 3 || row.iType == 7 : row.iType == 1;
            QTest::addRow("%s, type %d", ballMode ? "ball" : "flat", row.iType) << ballMode << row.iType << eligible;
        }
    }
}

void CVelmarTableViewTest::modeAndTypeDecideWhatIsEligible()
{
    QFETCH(const bool, ballMode);
    QFETCH(const int, type);
    QFETCH(const bool, eligible);
    Fill(ballMode, FullList({type, type, type, type, type, type}));
    for (int row = 0; row < 6; ++row) {
        for (int column = 0; column < 4; ++column) {
            QCOMPARE(ColorOf(m_pView->m_pModel, row, column), eligible ? kBlack : kGrey);
        }
    }
    Click(2);
    QCOMPARE(m_pView->m_pOverlay->isVisible(), eligible);
}

void CVelmarTableViewTest::listFillsRowsFromItsSecondRecord()
{
    Fill(false, FullList({0, 1, 2, 3, 4, 5}));
    for (int row = 0; row < 6; ++row) {
        QCOMPARE(TextAt(row, 0), QString::number(row + 1));
        QCOMPARE(TextAt(row, 1), QString::fromUtf8(kTypes[row].szName));
        QCOMPARE(TextAt(row, 2), QString::number(3 + row));
        QCOMPARE(TextAt(row, 3), QString::number(50 + row));
    }
}

void CVelmarTableViewTest::numbersHaveSixDigits_data()
{
    QTest::addColumn<double>("number");
    QTest::addColumn<QString>("text");
    QTest::newRow("whole") << 4.0 << "4";
    QTest::newRow("decimals") << 3.175 << "3.175";
    QTest::newRow("rounded") << 123.4567 << "123.457";
    QTest::newRow("negative") << -0.5 << "-0.5";
    QTest::newRow("zero") << 0.0 << "0";
    QTest::newRow("large") << 1234567.0 << "1.23457e+06";
    QTest::newRow("small") << 0.00001234 << "1.234e-05";
    QTest::newRow("no number") << std::numeric_limits<double>::quiet_NaN() << "nan";
    QTest::newRow("infinite") << std::numeric_limits<double>::infinity() << "inf";
}

void CVelmarTableViewTest::numbersHaveSixDigits()
{
    QFETCH(const double, number);
    QFETCH(const QString, text);
    Fill(false, {{}, {1, number, 2.0}, {1, 3.0, number}});
    QCOMPARE(TextAt(0, 3), text);
    QCOMPARE(TextAt(0, 2), QStringLiteral("2"));
    QCOMPARE(TextAt(1, 2), text);
    QCOMPARE(TextAt(1, 3), QStringLiteral("3"));
}

void CVelmarTableViewTest::ineligibleRowStaysEditable()
{
    Fill(false, FullList({3, 3, 3, 3, 3, 3}));
    DoubleClick(1, 2);
    QVERIFY(Editor());
}

void CVelmarTableViewTest::shortListLeavesRowsEmpty_data()
{
    QTest::addColumn<int>("records");
    for (int records = 0; records < 7; ++records) {
        QTest::addRow("%d", records) << records;
    }
}

void CVelmarTableViewTest::shortListLeavesRowsEmpty()
{
    QFETCH(const int, records);
    Fill(false, FullList({1, 1, 1, 1, 1, 1}));
    Fill(false, FullList({1, 1, 1, 1, 1, 1}).mid(0, records));
    for (int row = 0; row < 6; ++row) {
        const bool has = row + 1 < records;
        QCOMPARE(TextAt(row, 0), QString::number(row + 1));
        QCOMPARE(ColorOf(m_pView->m_pModel, row, 0), has ? kBlack : kGrey);
        QCOMPARE(m_pView->m_pModel->item(row, 1)->icon().isNull(), !has);
        for (int column = 1; column < 4; ++column) {
            QCOMPARE(TextAt(row, column).isEmpty(), !has);
        }
        QCOMPARE(m_pView->m_pModel->item(row, 2)->isEditable(), has);
        QCOMPARE(m_pView->m_pModel->item(row, 3)->isEditable(), has);
        m_pView->m_pOverlay->hide();
        m_pView->setCurrentIndex(QModelIndex());
        Click(row);
        QCOMPARE(m_pView->m_pOverlay->isVisible(), has);
    }
    m_pView->grab();
}

void CVelmarTableViewTest::rowThatWasEmptyIsFilledAgain()
{
    Fill(false, {});
    Fill(false, FullList({1, 1, 1, 1, 1, 1}));
    QCOMPARE(TextAt(5, 1), QStringLiteral("立铣刀"));
    QCOMPARE(ColorOf(m_pView->m_pModel, 5, 2), kBlack);
    DoubleClick(5, 3);
    QVERIFY(Editor());
}

void CVelmarTableViewTest::longListIsCutToSixRows()
{
    QList<ToolRecord> list = FullList();
    list.append({1, 99.0, 99.0});
    Fill(false, list);
    QCOMPARE(m_pView->m_pModel->rowCount(), 6);
    QCOMPARE(TextAt(5, 2), QStringLiteral("8"));
}

void CVelmarTableViewTest::listIsKeptAsItWasGiven()
{
    QList<ToolRecord> list = FullList();
    m_pView->SetToolList(list);
    QCOMPARE(m_pView->m_listTool.size(), 7);
    QCOMPARE(m_pView->m_listTool.constData(), list.constData());
    list[1].dLength = 1.0;
    list.removeLast();
    m_pView->SelectRow(0);
    QCOMPARE(m_pView->GetCurrentTool().dLength, 50.0);
}

void CVelmarTableViewTest::listMayChangeWhileItIsWritten()
{
    QList<ToolRecord> list = FullList();
    connect(m_pView->m_pModel, &QAbstractItemModel::dataChanged, this, [&list] { list.clear(); });
    m_pView->SetToolList(list);
    QCOMPARE(m_pView->m_listTool.size(), 7);
    QCOMPARE(TextAt(5, 2), QStringLiteral("8"));
}

void CVelmarTableViewTest::selectRowPutsTheFrame_data()
{
    QTest::addColumn<int>("row");
    for (int row = 0; row < 6; ++row) {
        QTest::addRow("%d", row) << row;
    }
}

void CVelmarTableViewTest::selectRowPutsTheFrame()
{
    QFETCH(const int, row);
    m_pView->SelectRow(row);
    QCOMPARE(m_pView->m_iCurrentRow, row);
    QVERIFY(m_pView->m_pOverlay->isVisible());
    QCOMPARE(m_pView->m_pOverlay->geometry(), QRect(0, row * 36 + 34, 347, 34));

    // The same before the table was ever shown.
    CVelmarTableView hidden(nullptr, false);
    hidden.SelectRow(row);
    QCOMPARE(hidden.m_pOverlay->pos(), QPoint(0, row * 36 + 34));
    QVERIFY(!hidden.m_pOverlay->isHidden());
}

void CVelmarTableViewTest::selectRowIgnoresRowsThatAreNone_data()
{
    QTest::addColumn<int>("row");
    for (const int row : {-1, 6, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        QTest::addRow("%d", row) << row;
    }
}

void CVelmarTableViewTest::selectRowIgnoresRowsThatAreNone()
{
    QFETCH(const int, row);
    m_pView->SelectRow(row);
    QVERIFY(m_pView->m_pOverlay->isHidden());
    m_pView->SelectRow(3);
    const QRect before = m_pView->m_pOverlay->geometry();
    m_pView->SelectRow(row);
    QCOMPARE(m_pView->m_iCurrentRow, 3);
    QCOMPARE(m_pView->m_pOverlay->geometry(), before);
}

void CVelmarTableViewTest::selectRowAsksNotForTheType()
{
    Fill(false, FullList({3, 3, 3, 3, 3, 3}));
    m_pView->SelectRow(4);
    QVERIFY(m_pView->m_pOverlay->isVisible());
    QCOMPARE(m_pView->m_iCurrentRow, 4);
}

void CVelmarTableViewTest::frameIsPaintedOverItsRow()
{
    m_pView->SelectRow(2);
    const QImage image = m_pView->grab().toImage();
    const QColor green(23, 160, 97);
    const int top = 2 * 36 + 34;
    for (const int x : {10, 170, 300}) {
        QCOMPARE(image.pixelColor(x, top), green);
        QCOMPARE(image.pixelColor(x, top + 33), green);
    }
    QCOMPARE(image.pixelColor(0, top + 17), green);
    QCOMPARE(image.pixelColor(346, top + 25), green);
    QVERIFY(image.pixelColor(348, top + 25) != green);
    // The mark lies in the upper right corner: right of the 329 pixels, above the 15.
    m_pView->m_pOverlay->hide();
    const QImage ground = m_pView->grab().toImage();
    const auto isMarked = [&](int x, int y) { return image.pixelColor(x, y) != ground.pixelColor(x, y); };
    QVERIFY(isMarked(343, top + 4));
    QVERIFY(!isMarked(325, top + 8));
    QVERIFY(!isMarked(340, top + 28));
}

void CVelmarTableViewTest::frameLetsTheMouseThrough()
{
    Fill(false, FullList({1, 1, 1, 1, 1, 1}));
    m_pView->SelectRow(1);
    QCOMPARE(m_pView->childAt(100, 32 + 36 + 18), m_pView->viewport());
    DoubleClick(1, 3);
    QVERIFY(Editor());
}

void CVelmarTableViewTest::frameFollowsEligibleTools_data()
{
    QTest::addColumn<bool>("ballMode");
    QTest::newRow("flat") << false;
    QTest::newRow("ball") << true;
}

void CVelmarTableViewTest::frameFollowsEligibleTools()
{
    QFETCH(const bool, ballMode);
    Fill(ballMode, FullList({1, 3, 2, 7, 1, 5}));
    // Row 0 is current from the start, so that choosing it is no change.
    m_pView->setCurrentIndex(QModelIndex());
    const QList<int> eligible = ballMode ? QList<int>{1, 3} : QList<int>{0, 4};
    int framed = -1;
    for (int row = 0; row < 6; ++row) {
        for (int column = 3; column >= 0; --column) {
            m_pView->setCurrentIndex(m_pView->m_pModel->index(row, column));
        }
        framed = eligible.contains(row) ? row : framed;
        QCOMPARE(m_pView->m_pOverlay->isVisible(), framed >= 0);
        if (framed >= 0) {
            QCOMPARE(m_pView->m_iCurrentRow, framed);
            QCOMPARE(m_pView->m_pOverlay->y(), framed * 36 + 34);
        }
    }
}

void CVelmarTableViewTest::clickOnIneligibleToolMovesOnlyTheCurrentIndex()
{
    Fill(false, FullList({1, 3, 2, 7, 1, 5}));
    Click(4, 1);
    QCOMPARE(m_pView->m_iCurrentRow, 4);
    Click(1, 1);
    QCOMPARE(m_pView->currentIndex(), m_pView->m_pModel->index(1, 1));
    QCOMPARE(m_pView->m_iCurrentRow, 4);
    QCOMPARE(m_pView->m_pOverlay->y(), 4 * 36 + 34);
    QCOMPARE(m_pView->GetCurrentTool().dDiameter, 7.0);
    QVERIFY(m_pView->selectionModel()->selectedIndexes().isEmpty());
}

void CVelmarTableViewTest::arrowKeysMoveTheFrame()
{
    Fill(false, FullList({1, 3, 1, 7, 1, 5}));
    QTest::keyClick(m_pView.get(), Qt::Key_Down);
    QVERIFY(m_pView->m_pOverlay->isHidden());
    QTest::keyClick(m_pView.get(), Qt::Key_Down);
    QCOMPARE(m_pView->m_iCurrentRow, 2);
    QVERIFY(m_pView->m_pOverlay->isVisible());
}

void CVelmarTableViewTest::newListLeavesTheFrame()
{
    Fill(false, FullList({1, 1, 1, 1, 1, 1}));
    Click(3);
    Fill(false, FullList({3, 3, 3, 3, 3, 3}));
    QVERIFY(m_pView->m_pOverlay->isVisible());
    QCOMPARE(m_pView->m_iCurrentRow, 3);
    QCOMPARE(m_pView->GetCurrentTool().iToolType, 3);
}

void CVelmarTableViewTest::currentToolIsTheRecordOfTheFrame()
{
    Fill(false, FullList());
    for (int row = 0; row < 6; ++row) {
        m_pView->SelectRow(row);
        const ToolRecord tool = m_pView->GetCurrentTool();
        QCOMPARE(tool.iToolType, FullList().at(row + 1).iToolType);
        QCOMPARE(tool.dLength, 50.0 + row);
        QCOMPARE(tool.dDiameter, 3.0 + row);
    }
}

void CVelmarTableViewTest::currentToolWithoutRecordIsEmpty()
{
    const auto isEmpty = [](const ToolRecord& tool) {
        return tool.iToolType == 0 && tool.dLength == 0.0 && tool.dDiameter == 0.0;
    };
    QVERIFY(isEmpty(m_pView->GetCurrentTool()));
    Fill(false, FullList().mid(0, 3));
    m_pView->SelectRow(2);
    QVERIFY(isEmpty(m_pView->GetCurrentTool()));
    m_pView->SelectRow(1);
    QCOMPARE(m_pView->GetCurrentTool().iToolType, 3);
}

void CVelmarTableViewTest::invalidIndexLeavesTheFrame()
{
    Fill(false, FullList({1, 1, 1, 1, 1, 1}));
    m_pView->SelectRow(3);
    m_pView->setCurrentIndex(QModelIndex());
    m_pView->currentChanged(QModelIndex(), QModelIndex());
    QCOMPARE(m_pView->m_iCurrentRow, 3);
    QVERIFY(m_pView->m_pOverlay->isVisible());
}

void CVelmarTableViewTest::doubleClickEditsTheMeasuresOnly_data()
{
    QTest::addColumn<int>("column");
    for (int column = 0; column < 4; ++column) {
        QTest::addRow("%d", column) << column;
    }
}

void CVelmarTableViewTest::doubleClickEditsTheMeasuresOnly()
{
    QFETCH(const int, column);
    Fill(false, FullList());
    Click(0, column);
    QVERIFY(!Editor());
    DoubleClick(0, column);
    QCOMPARE(Editor() != nullptr, column >= 2);
}

void CVelmarTableViewTest::returnStoresTheNumber()
{
    Fill(false, FullList());
    QSignalSpy spy(m_pView->m_pLineDelegate, &CDelegateLineEdit::SignalDataChanged);
    DoubleClick(4, 2);
    QCOMPARE(Editor()->text(), QStringLiteral("7"));
    Editor()->selectAll();
    QTest::keyClicks(Editor(), QStringLiteral("12.5"));
    QTest::keyClick(Editor(), Qt::Key_Return);
    QTRY_COMPARE(TextAt(4, 2), QStringLiteral("12.5"));
    QCOMPARE(spy.size(), 1);
    QCOMPARE(spy.first().first().toDouble(), 12.5);
    QVERIFY(!Editor());
    // The record is what the host gave; the edit is read from the model.
    m_pView->SelectRow(4);
    QCOMPARE(m_pView->GetCurrentTool().dDiameter, 7.0);
}

void CVelmarTableViewTest::escapeKeepsTheNumber()
{
    Fill(false, FullList());
    DoubleClick(4, 3);
    Editor()->selectAll();
    QTest::keyClicks(Editor(), QStringLiteral("9"));
    QTest::keyClick(Editor(), Qt::Key_Escape);
    QTRY_VERIFY(!Editor());
    QCOMPARE(TextAt(4, 3), QStringLiteral("54"));
}

void CVelmarTableViewTest::tabGoesOnToTheNextMeasure()
{
    Fill(false, FullList());
    DoubleClick(4, 2);
    Editor()->selectAll();
    QTest::keyClicks(Editor(), QStringLiteral("8"));
    QTest::keyClick(Editor(), Qt::Key_Tab);
    QTRY_COMPARE(m_pView->currentIndex(), m_pView->m_pModel->index(4, 3));
    QCOMPARE(TextAt(4, 2), QStringLiteral("8"));
    QTRY_VERIFY(Editor());
    QCOMPARE(Editor()->text(), QStringLiteral("54"));
}

void CVelmarTableViewTest::viewMayGoWhileItIsEdited()
{
    Fill(false, FullList());
    DoubleClick(4, 2);
    const QPointer<QLineEdit> editor = Editor();
    QVERIFY(editor);
    m_pView.reset();
    QVERIFY(!editor);
}

void CVelmarTableViewTest::recordIsCopiedBytewise()
{
    QVERIFY(std::is_trivially_copyable_v<ToolRecord>);
    QVERIFY(std::is_standard_layout_v<ToolRecord>);
    QVERIFY(offsetof(ToolRecord, iToolType) < offsetof(ToolRecord, dLength));
    QVERIFY(offsetof(ToolRecord, dLength) < offsetof(ToolRecord, dDiameter));
}

CUSTOMCONTROLS_TEST_MAIN(CVelmarTableViewTest)
#include "CVelmarTableViewTest.moc"

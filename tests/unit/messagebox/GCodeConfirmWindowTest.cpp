#include <CustomControls/messagebox/CVelmarMessageBox.h>
#include <CustomControls/messagebox/CVelmarMessageListItem.h>

#include "ui_CVelmarMessageBox.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CorvaneBase/CorvaneToolBitHelper.h>

#include <tests/support/LogCapture.h>
#include <tests/support/TestMain.h>
#include <tests/unit/messagebox/RunningBox.h>

#include <QListWidget>
#include <QScreen>
#include <QScrollBar>
#include <QVBoxLayout>

#include <ctime>
#include <limits>

namespace {

const QString kListSheet = QStringLiteral(
    "QListWidget {background: #F6F6F6;border: 1px solid #e5e5e5;border-radius: 4px;padding: 0;margin: 0;}QListWidget::"
    "item {border: 1px solid #e5e5e5;padding: 0;margin: 0;}QListWidget::item:selected {background: #e6f7ff;}"
    "QScrollBar:vertical {    border: none;    background: #f0f0f0;    width: 12px;    margin: 0px 0px 0px 0px;}"
    "QScrollBar::handle:vertical {    background: #cccccc;    min-height: 40px;    border-radius: 6px;}QScrollBar::"
    "handle:vertical:hover {    background: #aaaaaa;}QScrollBar::add-line:vertical,QScrollBar::sub-line:vertical {    "
    "border: none;    background: none;    height: 0px;    width: 0px;}QScrollBar::add-page:vertical,QScrollBar::"
    "sub-page:vertical {    background: none;}");

using Threads = QList<std::array<int, 3>>;

struct Tools
{
    QList<int> rough;
    QList<int> semiFinish;
    QList<int> finish;
    Threads threads;
    int iTexture = -1;
};

int Confirm(const Tools& tools, const BoxAction& action, QWidget* parent = nullptr, ModelType model = ModelTypeStandard)
{
    InNextBox(action);
    return CVelmarMessageBox::ShowGCodeConfirmWindow(parent, 0, MsgIconPop5, QStringLiteral("title"), tools.rough,
                                                     tools.semiFinish, tools.finish, tools.threads, tools.iTexture,
                                                     model);
}

QListWidget* ListOf(const CVelmarMessageBox* box)
{
    return box->findChild<QListWidget*>();
}

CVelmarMessageListItem* RowAt(const CVelmarMessageBox* box, int row)
{
    const QListWidget* list = ListOf(box);
    return qobject_cast<CVelmarMessageListItem*>(list->itemWidget(list->item(row)));
}

QLabel* LabelOf(const CVelmarMessageListItem* row, const char* name)
{
    return row->findChild<QLabel*>(QLatin1String(name));
}

/** The tag's name as its picture file bears it. */
QString TagOf(const CVelmarMessageListItem* row)
{
    for (const char* label : {"iconLabel", "semiIconlabel"}) {
        const QImage seen = LabelOf(row, label)->pixmap().toImage();
        for (const char* tag : {"cu", "ban", "jing", "luowen", "wenli"}) {
            const QImage picture(QStringLiteral(":/icon/ico_tag_%1.png").arg(QLatin1String(tag)));
            if (!seen.isNull() && seen == picture.convertToFormat(seen.format())) {
                return QLatin1String(tag);
            }
        }
    }
    return QStringLiteral("none");
}

/** The rows below the titles: tag and place, such as "cu T3". */
QStringList RowsOf(const CVelmarMessageBox* box)
{
    QStringList rows;
    for (int i = 1; i < ListOf(box)->count(); ++i) {
        const CVelmarMessageListItem* row = RowAt(box, i);
        rows.append(TagOf(row) + QLatin1Char(' ') + LabelOf(row, "toolLocation")->text());
    }
    return rows;
}

QStringList Texts(std::initializer_list<const char*> texts)
{
    QStringList list;
    for (const char* text : texts) {
        list.append(QLatin1String(text));
    }
    return list;
}

Tools RoughTools(int count)
{
    Tools tools;
    for (int i = 0; i < count; ++i) {
        tools.rough.append(i % 8 + 1);
    }
    return tools;
}

void Answer(CVelmarMessageBox* box)
{
    box->MsgExit(MsgBtnOk);
}

} // namespace

Q_DECLARE_METATYPE(Tools)

class GCodeConfirmWindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();

    void boxIsTheSameWhateverMaskAndIcon_data();
    void boxIsTheSameWhateverMaskAndIcon();
    void titleIsShown();
    void sentenceStandsOverTheList();
    void listIsSetUpForReadingOnly();
    void listStandsInsteadOfTheContent();
    void firstRowBearsTheTitles();
    void rowsFollowTheLists_data();
    void rowsFollowTheLists();
    void threadToolsComeInTheirOrder_data();
    void threadToolsComeInTheirOrder();
    void rowTellsWhatTheDataKnows_data();
    void rowTellsWhatTheDataKnows();
    void unknownToolMakesARowToo_data();
    void unknownToolMakesARowToo();
    void unknownModelMakesRowsToo();
    void hostsOwnToolsAreShown();
    void noRowLooksSelected();
    void atMostNineRowsAreSeen_data();
    void atMostNineRowsAreSeen();
    void lastRowIsScrolledTo();
    void rowsFillTheListOneBelowTheOther();
    void boxGrowsWithItsList();
    void tallBoxStaysOnItsScreen();
    void boxThatFitsKeepsItsPlace();
    void rowsSpeakTheProductsLanguage();
    void manyRowsCostNoMoreEach();

    void okReturnsOneAndIsTold();
    void returnAnswers();
    void escapeReturnsTwo();
    void checkingModeLogsNothing();
    void boxIsDeletedAtTheEnd();
    void windowRunsOverAnotherBox();
    void boxDeletedInItsRunEndsIt();
    void parentDeletedInItsRunEndsIt();
    void parentDeletedByTheSignalReturnsOne();
    void rowsDeletedInItsRunAreNotMissed();
};

void GCodeConfirmWindowTest::init()
{
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(true);
    CorvaneSignalHelper::instance()->SetInCheckingEnvironment(false);
}

void GCodeConfirmWindowTest::boxIsTheSameWhateverMaskAndIcon_data()
{
    QTest::addColumn<int>("mask");
    QTest::addColumn<int>("icon");
    QTest::newRow("as it is") << 1 << 1;
    QTest::newRow("two buttons, another icon") << 12 << 3;
    QTest::newRow("no button, the animation") << 0 << 5;
    QTest::newRow("all buttons, no icon") << 0x1fff << 0;
    QTest::newRow("unknown values") << -1 << 99;
}

void GCodeConfirmWindowTest::boxIsTheSameWhateverMaskAndIcon()
{
    QFETCH(const int, mask);
    QFETCH(const int, icon);
    InNextBox([](CVelmarMessageBox* box) {
        const QList<QPushButton*> row = Row(box);
        QCOMPARE(row.size(), 1);
        QCOMPARE(row.first()->text(), QStringLiteral("确定"));
        QCOMPARE(row.first()->property("Function").toInt(), 1);
        QVERIFY(!box->m_pBtnClose);
        QCOMPARE(box->m_iButtonMask, 1);
        QCOMPARE(box->ui->m_labelIcon->styleSheet(),
                 QStringLiteral("background:transparent;border:none;image:url(:/icon/img_pop_2.png)"));
        QVERIFY(!box->m_bExtended);
        QVERIFY(box->ui->checkBox->isHidden());
        QCOMPARE(box->findChildren<QTimer*>().size(), 0);
        row.first()->click();
    });
    QCOMPARE(CVelmarMessageBox::ShowGCodeConfirmWindow(nullptr, mask, EnumMsgIcon(icon), QStringLiteral("t"), {1}, {},
                                                       {}, {}, -1, ModelTypeStandard),
             1);
}

void GCodeConfirmWindowTest::titleIsShown()
{
    Confirm({}, [](CVelmarMessageBox* box) {
        QCOMPARE(box->windowTitle(), QStringLiteral("title"));
        QCOMPARE(box->ui->m_labelTitle->text(), QStringLiteral("title"));
        Answer(box);
    });
}

void GCodeConfirmWindowTest::sentenceStandsOverTheList()
{
    Confirm({}, [](CVelmarMessageBox* box) {
        QCOMPARE(box->ui->layoutContent->count(), 1);
        const auto* layout = qobject_cast<QVBoxLayout*>(box->ui->layoutContent->itemAt(0)->layout());
        QVERIFY(layout);
        QCOMPARE(layout->contentsMargins(), QMargins());
        QCOMPARE(layout->spacing(), 10);
        QCOMPARE(layout->count(), 2);
        const auto* sentence = qobject_cast<QLabel*>(layout->itemAt(0)->widget());
        QVERIFY(sentence);
        QCOMPARE(sentence->text(), QStringLiteral("请确保已将刀具放置在对应库位。"));
        QVERIFY(sentence->wordWrap());
        QCOMPARE(sentence->font(), FontCn_16);
        QCOMPARE(sentence->styleSheet(), QStringLiteral("color:#333333;"));
        QCOMPARE(layout->itemAt(1)->widget(), ListOf(box));
        Answer(box);
    });
}

void GCodeConfirmWindowTest::listIsSetUpForReadingOnly()
{
    Confirm({}, [](CVelmarMessageBox* box) {
        const QListWidget* list = ListOf(box);
        QCOMPARE(list->styleSheet(), kListSheet);
        QCOMPARE(list->focusPolicy(), Qt::NoFocus);
        QCOMPARE(list->selectionMode(), QAbstractItemView::NoSelection);
        QVERIFY(!list->dragEnabled());
        QCOMPARE(list->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
        QCOMPARE(list->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(list->verticalScrollMode(), QAbstractItemView::ScrollPerPixel);
        QCOMPARE(list->editTriggers(), QAbstractItemView::NoEditTriggers);
        Answer(box);
    });
}

void GCodeConfirmWindowTest::listStandsInsteadOfTheContent()
{
    Confirm({}, [](CVelmarMessageBox* box) {
        QVERIFY(!box->m_pLabelContent);
        QVERIFY(!box->m_pBrowserContent);
        box->SetContent(QStringLiteral("text"));
        QCOMPARE(box->ui->layoutContent->count(), 1);
        Answer(box);
    });
}

void GCodeConfirmWindowTest::firstRowBearsTheTitles()
{
    Confirm({{1}, {}, {}, {}, -1}, [](CVelmarMessageBox* box) {
        QCOMPARE(ListOf(box)->count(), 2);
        for (int i = 0; i < 2; ++i) {
            const CVelmarMessageListItem* row = RowAt(box, i);
            QVERIFY(row);
            QCOMPARE(ListOf(box)->item(i)->sizeHint(), QSize(436, 35));
            QCOMPARE(LabelOf(row, "titleToolLabel")->isVisible(), i == 0);
            QCOMPARE(LabelOf(row, "toolName")->isVisible(), i == 1);
            QCOMPARE(LabelOf(row, "iconLabel")->isVisible(), i == 1);
        }
        Answer(box);
    });
}

void GCodeConfirmWindowTest::rowsFollowTheLists_data()
{
    QTest::addColumn<Tools>("tools");
    QTest::addColumn<QStringList>("rows");
    // Every combination of lists that are empty and not.
    for (int bits = 0; bits < 32; ++bits) {
        Tools tools;
        QStringList rows;
        if (bits & 1) {
            tools.rough = {2, 1};
            rows += Texts({"cu T2", "cu T1"});
        }
        if (bits & 2) {
            tools.semiFinish = {3};
            rows += Texts({"ban T3"});
        }
        if (bits & 4) {
            tools.finish = {4, 4, 5};
            rows += Texts({"jing T4", "jing T4", "jing T5"});
        }
        if (bits & 8) {
            tools.threads = {{7, 8, 6}, {-1, 2, -1}};
            rows += Texts({"luowen T8", "luowen T7", "luowen T6", "luowen T2"});
        }
        if (bits & 16) {
            tools.iTexture = 6;
            rows += Texts({"wenli T6"});
        }
        QTest::addRow("%d%d%d%d%d", bits & 1, bits >> 1 & 1, bits >> 2 & 1, bits >> 3 & 1, bits >> 4 & 1)
            << tools << rows;
    }
}

void GCodeConfirmWindowTest::rowsFollowTheLists()
{
    QFETCH(const Tools, tools);
    QFETCH(const QStringList, rows);
    Confirm(tools, [&rows](CVelmarMessageBox* box) {
        QCOMPARE(RowsOf(box), rows);
        QCOMPARE(ListOf(box)->height(), 35 * qMin(int(rows.size()) + 1, 9) + 2);
        QCOMPARE(Row(box).size(), 1);
        Answer(box);
    });
}

void GCodeConfirmWindowTest::threadToolsComeInTheirOrder_data()
{
    QTest::addColumn<Tools>("tools");
    QTest::addColumn<QStringList>("rows");
    const auto threads = [](const Threads& list) { return Tools{{}, {}, {}, list, -1}; };
    QTest::newRow("three") << threads({{1, 2, 3}}) << Texts({"luowen T2", "luowen T1", "luowen T3"});
    QTest::newRow("middle alone") << threads({{-1, 5, -1}}) << Texts({"luowen T5"});
    QTest::newRow("first alone") << threads({{5, -1, -1}}) << Texts({"luowen T5"});
    QTest::newRow("last alone") << threads({{-1, -1, 5}}) << Texts({"luowen T5"});
    QTest::newRow("none") << threads({{-1, -1, -1}}) << QStringList();
    QTest::newRow("without the middle") << threads({{1, -1, 3}}) << Texts({"luowen T1", "luowen T3"});
    QTest::newRow("two threads") << threads({{1, 2, -1}, {-1, -1, 3}})
                                 << Texts({"luowen T2", "luowen T1", "luowen T3"});
    QTest::newRow("only -1 is none") << threads({{-2, 0, 1}}) << Texts({"luowen T-1", "luowen T-1", "luowen T1"});
}

void GCodeConfirmWindowTest::threadToolsComeInTheirOrder()
{
    QFETCH(const Tools, tools);
    QFETCH(const QStringList, rows);
    Confirm(tools, [&rows](CVelmarMessageBox* box) {
        QCOMPARE(RowsOf(box), rows);
        Answer(box);
    });
}

void GCodeConfirmWindowTest::rowTellsWhatTheDataKnows_data()
{
    QTest::addColumn<int>("model");
    QTest::newRow("standard") << int(ModelTypeStandard);
    QTest::newRow("compact") << int(ModelTypeCompact);
    QTest::newRow("scanner") << int(ModelTypeScanner);
}

void GCodeConfirmWindowTest::rowTellsWhatTheDataKnows()
{
    QFETCH(const int, model);
    const auto modelType = ModelType(model);
    const Tools tools = RoughTools(8);
    Confirm(
        tools,
        [&](CVelmarMessageBox* box) {
            CorvaneToolBitHelper* data = CorvaneToolBitHelper::instance();
            QCOMPARE(ListOf(box)->count(), 9);
            for (int number = 1; number <= 8; ++number) {
                const CVelmarMessageListItem* row = RowAt(box, number);
                // The tool tip has the whole name, however wide the letters.
                QCOMPARE(LabelOf(row, "toolName")->toolTip(),
                         data->GetToolNameByType(data->GetIntegerToolTypeByNumber(number, modelType)));
                QCOMPARE(LabelOf(row, "toolSize")->text(), data->GetToolDetailByNumber(number, modelType));
                QCOMPARE(LabelOf(row, "toolLocation")->text(),
                         QStringLiteral("T%1").arg(data->GetToolLocationByToolNo(number, modelType)));
            }
            QVERIFY(!LabelOf(RowAt(box, 1), "toolSize")->text().isEmpty());
            Answer(box);
        },
        nullptr, modelType);
}

void GCodeConfirmWindowTest::unknownToolMakesARowToo_data()
{
    QTest::addColumn<int>("number");
    for (const int number : {0, 9, 9999, -2, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        QTest::addRow("%d", number) << number;
    }
}

void GCodeConfirmWindowTest::unknownToolMakesARowToo()
{
    QFETCH(const int, number);
    // -1 stands for none among threads and textures only.
    Confirm({{number}, {number}, {number}, {}, -1}, [](CVelmarMessageBox* box) {
        QCOMPARE(RowsOf(box), Texts({"cu T-1", "ban T-1", "jing T-1"}));
        for (int i = 1; i <= 3; ++i) {
            QCOMPARE(LabelOf(RowAt(box, i), "toolName")->text(), QString());
            QCOMPARE(LabelOf(RowAt(box, i), "toolSize")->text(), QString());
        }
        Answer(box);
    });
}

void GCodeConfirmWindowTest::unknownModelMakesRowsToo()
{
    Confirm(
        {{1}, {}, {}, {}, 2},
        [](CVelmarMessageBox* box) {
            QCOMPARE(RowsOf(box), Texts({"cu T-1", "wenli T-1"}));
            Answer(box);
        },
        nullptr, ModelType(77));
}

void GCodeConfirmWindowTest::hostsOwnToolsAreShown()
{
    const auto model = ModelType(5);
    CorvaneToolBitHelper::instance()->SetTools(model, {{40, 7, QStringLiteral("R0.25 <b>L38</b>"), 12}});
    Confirm(
        {{}, {}, {40}, {}, -1},
        [](CVelmarMessageBox* box) {
            QCOMPARE(RowsOf(box), Texts({"jing T12"}));
            QCOMPARE(LabelOf(RowAt(box, 1), "toolName")->toolTip(), QStringLiteral("锥度球头铣刀"));
            QCOMPARE(LabelOf(RowAt(box, 1), "toolSize")->text(), QStringLiteral("R0.25 <b>L38</b>"));
            Answer(box);
        },
        nullptr, model);
}

void GCodeConfirmWindowTest::noRowLooksSelected()
{
    Confirm({{1, 2}, {3}, {}, {}, -1}, [](CVelmarMessageBox* box) {
        QVERIFY(ListOf(box)->selectedItems().isEmpty());
        // The ground of the list shows beside the texts of every row.
        const QImage image = ListOf(box)->viewport()->grab().toImage();
        for (int row = 0; row < 4; ++row) {
            QCOMPARE(image.pixelColor(300, row * 35 + 17), QColor(0xf6, 0xf6, 0xf6));
        }
        Answer(box);
    });
}

void GCodeConfirmWindowTest::atMostNineRowsAreSeen_data()
{
    QTest::addColumn<int>("tools");
    QTest::addColumn<int>("seen");
    QTest::newRow("none") << 0 << 1;
    QTest::newRow("one") << 1 << 2;
    QTest::newRow("seven") << 7 << 8;
    QTest::newRow("eight") << 8 << 9;
    QTest::newRow("nine") << 9 << 9;
    QTest::newRow("forty") << 40 << 9;
}

void GCodeConfirmWindowTest::atMostNineRowsAreSeen()
{
    QFETCH(const int, tools);
    QFETCH(const int, seen);
    Confirm(RoughTools(tools), [tools, seen](CVelmarMessageBox* box) {
        const QListWidget* list = ListOf(box);
        QCOMPARE(list->count(), tools + 1);
        QCOMPARE(list->height(), 35 * seen + 2);
        QCOMPARE(list->minimumHeight(), list->maximumHeight());
        QTRY_COMPARE(list->verticalScrollBar()->isVisible(), tools + 1 > 9);
        QVERIFY(!list->horizontalScrollBar()->isVisible());
        Answer(box);
    });
}

void GCodeConfirmWindowTest::lastRowIsScrolledTo()
{
    Confirm(RoughTools(20), [](CVelmarMessageBox* box) {
        QListWidget* list = ListOf(box);
        QScrollBar* bar = list->verticalScrollBar();
        QTRY_COMPARE(bar->maximum(), 35 * (21 - 9));
        bar->setValue(bar->maximum());
        QTRY_COMPARE(list->visualItemRect(list->item(20)).bottom(), list->viewport()->height() - 1);
        QVERIFY(list->viewport()->rect().contains(RowAt(box, 20)->geometry().center()));
        // Pixel by pixel: a step need not end at a row.
        bar->setValue(7);
        QTRY_COMPARE(list->visualItemRect(list->item(1)).y(), 35 - 7);
        Answer(box);
    });
}

void GCodeConfirmWindowTest::rowsFillTheListOneBelowTheOther()
{
    Confirm(RoughTools(3), [](CVelmarMessageBox* box) {
        const QListWidget* list = ListOf(box);
        for (int i = 0; i < 4; ++i) {
            QTRY_COMPARE(list->visualItemRect(list->item(i)), QRect(0, 35 * i, 436, 35));
            QCOMPARE(RowAt(box, i)->size(), QSize(436, 35));
            QVERIFY(list->visualItemRect(list->item(i)).contains(RowAt(box, i)->geometry().center()));
        }
        QCOMPARE(ListOf(box)->viewport()->height(), 4 * 35);
        Answer(box);
    });
}

void GCodeConfirmWindowTest::boxGrowsWithItsList()
{
    int heights[2] = {};
    for (int i = 0; i < 2; ++i) {
        Confirm(RoughTools(i * 5), [&heights, i](CVelmarMessageBox* box) {
            heights[i] = box->height();
            QCOMPARE(box->width(), 580);
            const QPushButton* button = ButtonOf(box, MsgBtnOk);
            const int bottom = button->mapTo(box, QPoint(0, button->height())).y();
            const int listBottom = ListOf(box)->mapTo(box, QPoint(0, ListOf(box)->height())).y();
            QVERIFY(listBottom < bottom - button->height());
            QVERIFY(bottom < box->height());
            QCOMPARE(box->height(), box->sizeHint().height());
            Answer(box);
        });
    }
    QCOMPARE(heights[1] - heights[0], 5 * 35);
}

void GCodeConfirmWindowTest::tallBoxStaysOnItsScreen()
{
    const QRect screen = QGuiApplication::primaryScreen()->availableGeometry();
    QWidget host;
    host.setGeometry(screen.right() - 300, screen.bottom() - 200, 300, 200);
    host.show();
    Confirm(
        RoughTools(20),
        [screen](CVelmarMessageBox* box) {
            QVERIFY(screen.contains(box->frameGeometry()));
            Answer(box);
        },
        &host);
}

void GCodeConfirmWindowTest::boxThatFitsKeepsItsPlace()
{
    QWidget host;
    host.setGeometry(100, 0, 580, 300);
    host.show();
    const CVelmarMessageBox plain(&host, MsgBtnOk, MsgIconPop5, QStringLiteral("title"), QString(), false, false, {});
    Confirm(
        RoughTools(8),
        [&plain](CVelmarMessageBox* box) {
            QCOMPARE(box->pos(), plain.pos());
            QVERIFY(box->height() > plain.height());
            Answer(box);
        },
        &host);
}

void GCodeConfirmWindowTest::rowsSpeakTheProductsLanguage()
{
    CorvaneTextHelper::instance()->SetAppInChineseEnvironment(false);
    Confirm({{1}, {2}, {3}, {{4, -1, -1}}, 5}, [](CVelmarMessageBox* box) {
        const char* tags[] = {"cu", "ban", "jing", "luowen", "wenli"};
        for (int i = 0; i < 5; ++i) {
            const char* label = i == 1 ? "semiIconlabel" : "iconLabel";
            const QImage seen = LabelOf(RowAt(box, i + 1), label)->pixmap().toImage();
            const QImage picture(QStringLiteral(":/icon/ico_tag_%1_en.png").arg(QLatin1String(tags[i])));
            QCOMPARE(seen, picture.convertToFormat(seen.format()));
        }
        Answer(box);
    });
}

void GCodeConfirmWindowTest::manyRowsCostNoMoreEach()
{
    // Processor time: other programs may keep this one waiting.
    const auto costPerRow = [](int rows) {
        const Tools tools = RoughTools(rows);
        const std::clock_t start = std::clock();
        Confirm(tools, [&](CVelmarMessageBox* box) {
            QCOMPARE(ListOf(box)->count(), rows + 1);
            Answer(box);
        });
        return double(std::clock() - start) * 1e6 / CLOCKS_PER_SEC / rows;
    };
    costPerRow(50); // the first window also loads what all of them share
    const double few = costPerRow(100);
    const double many = costPerRow(1000);
    // A cost that grows with the rows would make it ten times as much.
    QVERIFY2(many < 4 * few, qPrintable(QStringLiteral("%1 us and %2 us").arg(few).arg(many)));
}

void GCodeConfirmWindowTest::okReturnsOneAndIsTold()
{
    QList<int> codes;
    const int code = Confirm({}, [&codes](CVelmarMessageBox* box) {
        connect(box, &CVelmarMessageBox::SignalMessageBoxOperation, box, [&codes](int bit) { codes.append(bit); });
        QTest::mouseClick(ButtonOf(box, MsgBtnOk), Qt::LeftButton);
    });
    QCOMPARE(code, 1);
    QCOMPARE(codes, QList<int>{1});
}

void GCodeConfirmWindowTest::returnAnswers()
{
    QCOMPARE(Confirm(RoughTools(12), [](CVelmarMessageBox* box) { SendKeyRelease(box, Qt::Key_Return); }), 1);
}

void GCodeConfirmWindowTest::escapeReturnsTwo()
{
    QCOMPARE(Confirm(RoughTools(2), [](CVelmarMessageBox* box) { SendKeyRelease(box, Qt::Key_Escape); }), 2);
}

void GCodeConfirmWindowTest::checkingModeLogsNothing()
{
    CorvaneSignalHelper::instance()->SetInCheckingEnvironment(true);
    const LogCapture log;
    Confirm(RoughTools(2), Answer);
    QCOMPARE(log.Lines(), QStringList());
}

void GCodeConfirmWindowTest::boxIsDeletedAtTheEnd()
{
    QPointer<CVelmarMessageBox> box;
    QPointer<CVelmarMessageListItem> row;
    Confirm(RoughTools(2), [&](CVelmarMessageBox* running) {
        box = running;
        row = RowAt(running, 1);
        Answer(running);
    });
    QVERIFY(!box);
    QVERIFY(!row);
}

void GCodeConfirmWindowTest::windowRunsOverAnotherBox()
{
    InNextBox([](CVelmarMessageBox* older) {
        QCOMPARE(Confirm(RoughTools(2), Answer, older), 1);
        QVERIFY(older->isVisible());
        older->MsgExit(4);
    });
    QCOMPARE(CVelmarMessageBox::ShowWindow(nullptr, 4, MsgIconPop1, QString(), QStringLiteral("c")), 4);
}

void GCodeConfirmWindowTest::boxDeletedInItsRunEndsIt()
{
    QCOMPARE(Confirm(RoughTools(2), [](CVelmarMessageBox* box) { delete box; }), 2);
}

void GCodeConfirmWindowTest::parentDeletedInItsRunEndsIt()
{
    auto* host = new QWidget;
    host->show();
    QCOMPARE(Confirm(
                 RoughTools(12), [host](CVelmarMessageBox*) { delete host; }, host),
             2);
}

void GCodeConfirmWindowTest::parentDeletedByTheSignalReturnsOne()
{
    auto* host = new QWidget;
    host->show();
    const int code = Confirm(
        RoughTools(2),
        [host](CVelmarMessageBox* box) {
            connect(box, &CVelmarMessageBox::SignalMessageBoxOperation, host, [host] { delete host; });
            QTest::mouseClick(ButtonOf(box, MsgBtnOk), Qt::LeftButton);
        },
        host);
    QCOMPARE(code, 1);
}

void GCodeConfirmWindowTest::rowsDeletedInItsRunAreNotMissed()
{
    QCOMPARE(Confirm(RoughTools(2),
                     [](CVelmarMessageBox* box) {
                         delete RowAt(box, 1);
                         ListOf(box)->clear();
                         box->grab();
                         Answer(box);
                     }),
             1);
}

CUSTOMCONTROLS_TEST_MAIN(GCodeConfirmWindowTest)
#include "GCodeConfirmWindowTest.moc"

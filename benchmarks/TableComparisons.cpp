#include <benchmarks/Families.h>
#include <benchmarks/Life.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/CProgressWidget/CProgressBar.h>
#include <CustomControls/tables/CDelegateLineEdit.h>
#include <CustomControls/tables/CDelegateTableViewItem.h>
#include <CustomControls/tables/CVelmarTableView.h>

#include <QHeaderView>
#include <QProgressBar>
#include <QStandardItemModel>
#include <QTableView>

#include <iterator>

namespace {

enum Column
{
    ColumnNumber,
    ColumnType,
    ColumnDiameter,
    ColumnLength,
    ColumnCount
};

constexpr int kTools = 6;
constexpr int kColumnWidths[ColumnCount] = {30, 176, 55, 85};
constexpr int kRowHeight = 36;
constexpr QSize kTableSize(352, 248);
constexpr QRect kBarPlace(20, 20, 396, 24);

// The pictures of the first six types, as the tool table shows them.
const char* const kPictures[] = {"jiaodao", "pingdixidao", "ptxd_bk", "qiudao", "qiudao_bk", "yuanbixidao"};

QString Picture(int row)
{
    return QStringLiteral(":/icon/selectbox/tool/img_home_tool_%1.png")
        .arg(QLatin1String(kPictures[std::size_t(row) % std::size(kPictures)]));
}

constexpr char kLook[] = "QTableView{outline:none;border:none;background-color:rgb(239,239,239);"
                         "alternate-background-color:rgb(246,246,246);selection-background-color:white;}"
                         "QTableView::item:selected{border:2px solid rgb(23,160,97);color:black;}"
                         "QHeaderView::section{background-color:rgba(246,246,246,1);color:rgba(153,153,153,1);"
                         "border:none;}";
constexpr char kBarLook[] =
    "QProgressBar{border:1px solid rgb(185,185,185);border-radius:5px;background:rgb(219,219,219);"
    "text-align:center;}"
    "QProgressBar::chunk{border-radius:4px;background-color:#1c9a60;}";

void AddTools(QWidget* widget, int first, int count)
{
    auto* model = static_cast<QStandardItemModel*>(static_cast<QTableView*>(widget)->model());
    for (int row = first; row < first + count; ++row) {
        auto* number = new QStandardItem(QString::number(row + 1));
        auto* type = new QStandardItem(QIcon(Picture(row)), QStringLiteral("球头刀"));
        auto* diameter = new QStandardItem(QStringLiteral("⌀4"));
        auto* length = new QStandardItem(QStringLiteral("50"));
        for (QStandardItem* item : {number, type, diameter, length}) {
            item->setFont(FontCnMedium_14);
            item->setTextAlignment(Qt::AlignCenter);
        }
        model->appendRow({number, type, diameter, length});
    }
}

QTableView* Table(QWidget* parent, const char* sheet)
{
    auto* table = new QTableView(parent);
    table->setModel(new QStandardItemModel(0, ColumnCount, table));
    if (sheet) {
        table->setStyleSheet(QLatin1String(sheet));
    }
    table->setFixedSize(kTableSize);
    table->setShowGrid(false);
    table->setAlternatingRowColors(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setIconSize(QSize(76, 36));
    table->horizontalHeader()->setFixedHeight(32);
    table->horizontalHeader()->setMinimumSectionSize(kColumnWidths[ColumnNumber]);
    table->verticalHeader()->hide();
    table->verticalHeader()->setDefaultSectionSize(kRowHeight);
    for (int column = 0; column < ColumnCount; ++column) {
        table->setColumnWidth(column, kColumnWidths[column]);
    }
    AddTools(table, 0, kTools);
    return table;
}

QTableView* DelegatedTable(QWidget* parent)
{
    QTableView* table = Table(parent, kLook);
    auto* numbers = new CDelegateLineEdit(table);
    table->setItemDelegateForColumn(ColumnDiameter, numbers);
    table->setItemDelegateForColumn(ColumnLength, numbers);
    table->setItemDelegateForColumn(ColumnType, new CDelegateTableViewItem(table));
    return table;
}

void Select(QWidget* widget, bool on)
{
    static_cast<QTableView*>(widget)->selectRow(on ? 1 : 0);
}

Subject Toolkit(const char* sheet)
{
    Subject subject;
    subject.make = [sheet](QWidget* parent) { return Table(parent, sheet); };
    subject.change = Select;
    subject.fill = AddTools;
    return subject;
}

void AddToolTable()
{
    Cast cast{"tool table", "QTableView", {{}, Toolkit(kLook), Toolkit(nullptr)}};
    cast.subjects[VariantOurs].make = [](QWidget* parent) { return new CVelmarTableView(parent, false); };
    cast.subjects[VariantOurs].change = [](QWidget* widget, bool on) {
        static_cast<CVelmarTableView*>(widget)->SelectRow(on ? 1 : 0);
    };
    // It has six rows for ever.
    cast.subjects[VariantSameLook].fill = nullptr;
    cast.subjects[VariantPlain].fill = nullptr;
    Life::AddComparisons(cast);
}

void AddDelegates()
{
    Cast cast{"table with the delegates", "QTableView", {Toolkit(nullptr), Toolkit(kLook), Toolkit(nullptr)}};
    cast.subjects[VariantOurs].make = DelegatedTable;
    Life::AddComparisons(cast);
}

template <typename Bar>
Subject ProgressBar(const char* sheet)
{
    Subject subject;
    subject.make = [sheet](QWidget* parent) {
        auto* bar = new Bar(parent);
        bar->setGeometry(kBarPlace);
        bar->setMaximum(100);
        bar->setValue(50);
        if constexpr (std::is_same_v<Bar, CProgressBar>) {
            bar->setTextVisible(false); // it draws its own
        }
        if (sheet) {
            bar->setStyleSheet(QLatin1String(sheet));
        }
        return bar;
    };
    subject.change = [](QWidget* widget, bool on) { static_cast<QProgressBar*>(widget)->setValue(on ? 60 : 50); };
    return subject;
}

} // namespace

void AddTableComparisons()
{
    AddToolTable();
    AddDelegates();
    Life::AddComparisons({"progress bar",
                          "QProgressBar",
                          {ProgressBar<CProgressBar>(kBarLook), ProgressBar<QProgressBar>(kBarLook),
                           ProgressBar<QProgressBar>(nullptr)}});
}

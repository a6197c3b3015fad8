#include <benchmarks/Families.h>
#include <benchmarks/Life.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/CProgressWidget/CProgressWidget.h>
#include <CustomControls/frameless/FramelessDialog.h>
#include <CustomControls/frameless/FramelessMainWindow.h>
#include <CustomControls/frameless/PureQtFramelessWindow.h>
#include <CustomControls/machine/CSelectMachineBox.h>
#include <CustomControls/machine/CVelmarSelectBox.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QApplication>
#include <QDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMainWindow>
#include <QMessageBox>
#include <QMovie>
#include <QProgressDialog>
#include <QPushButton>
#include <QTableWidget>
#include <QTimer>
#include <QWindow>

namespace {

const QString kTitle = QStringLiteral("删除文件");
const QString kContent = QStringLiteral("确定要删除该文件吗？删除以后将无法恢复。");
const QString kMessage = QStringLiteral("重建中，请稍候");

constexpr int kValue = 40;
constexpr QSize kDialogSize(540, 340);
constexpr QSize kWindowSize(900, 600);
constexpr QSize kPanelSize(400, 500);
constexpr int kMachines = 10;

/** The panel, the bold title line, the text and the buttons of the house box. */
constexpr char kBoxLook[] =
    "QMessageBox{background:rgba(246, 246, 246, 1);border:1px solid rgba(187, 187, 187, 1);border-radius:4px;}"
    "QLabel{color:rgba(51, 51, 51, 1);background:transparent;border:0px solid red;}"
    "QLabel#qt_msgbox_label{min-width:428px;font-weight:bold;}"
    "QLabel#qt_msgbox_informativelabel{min-width:428px;}"
    "QPushButton{border:1px solid #c4c4c4;background:#f6f6f6;color:#333333;border-radius:4px;text-align:center;"
    "min-width:114px;max-width:114px;min-height:32px;max-height:32px;}"
    "QPushButton:default{border:1px solid transparent;background:#188553;color:#f5f5f5;}"
    "QPushButton::focus{border: 3px solid #58ff98;outline-offset:0px;}"
    "QPushButton::hover{background:#ffffff;}QPushButton::pressed{background:#aeaeae;}";
constexpr char kProgressLook[] =
    "QProgressDialog{background:#f6f6f6;border:1px solid #bbbbbb;border-radius:4px;}"
    "QLabel{background:transparent;border:none;color:#333333;}"
    "QProgressBar::chunk{border-top-left-radius:4px;border-bottom-left-radius:4px;background-color:"
    "qlineargradient(spread:repeat, x1:0.033, y1:0.001, x2:0, y2:0.002 stop:0 #1c9a60, stop:0.5 #1c9a60, "
    "stop:0.501 #1a8e58, stop:1 #1a8e58);}"
    "QProgressBar{border:1px solid rgb(185,185,185);border-radius:5px;background:rgb(219,219,219);}";
constexpr char kFrameLook[] = "#frameless{background:#ffffff;border:1px solid #2b2f33;}"
                              "#titleBar{background:#34363b;}#titleBar QLabel{color:#eeeeee;}"
                              "#titleBar QPushButton{border:none;background:transparent;color:#eeeeee;}";
constexpr char kPanelLook[] =
    "#panel{background:rgb(246,246,246);border:1px solid rgb(187,187,187);border-radius:4px;}"
    "QLabel{color:rgb(51,51,51);background:transparent;}"
    "QPushButton{border:1px solid #c4c4c4;background:#f6f6f6;color:#333333;border-radius:4px;min-height:32px;}"
    "QPushButton:hover{background:#ffffff;}QPushButton:pressed{background:#aeaeae;}"
    "QPushButton#confirm{background:#188553;color:#f5f5f5;}"
    "QTableView{alternate-background-color:rgb(246,246,246);background-color:rgb(239,239,239);"
    "border:1px solid rgb(229,229,229);border-radius:4px;outline:none;selection-background-color:#b2c6de;}"
    "QTableView::item{padding-left:15px;color:rgb(51,51,51);border:none;}"
    "QTableView::item:selected{background-color:rgb(178,198,222);}"
    "QHeaderView::section{background-color:rgb(246,246,246);color:rgb(153,153,153);padding-left:15px;border:none;}";

// The message box

QWidget* HouseBox()
{
    auto* box = new CVelmarMessageBox(nullptr, MsgBtnYes | MsgBtnNo, MsgIconPop2, kTitle, kContent, false, false, {});
    box->setAttribute(Qt::WA_DeleteOnClose, false);
    return box;
}

QMessageBox* ToolkitBox(bool sameLook)
{
    auto* box = new QMessageBox(QMessageBox::Question, kTitle, kTitle, QMessageBox::Yes | QMessageBox::No, nullptr,
                                Qt::Dialog | Qt::FramelessWindowHint);
    box->setInformativeText(kContent);
    if (sameLook) {
        box->setStyleSheet(QLatin1String(kBoxLook));
        box->setAttribute(Qt::WA_TranslucentBackground);
        box->setIconPixmap(QPixmap(QStringLiteral(":/icon/img_pop_2.png")));
    }
    box->setWindowModality(Qt::ApplicationModal);
    return box;
}

/** Lets @p answer act on the box that is opened next, once it has been painted. */
void WhenPainted(const std::function<void(QWidget*)>& answer)
{
    QTimer::singleShot(0, qApp, [answer] {
        QWidget* box = QApplication::activeModalWidget();
        if (box && box->windowHandle() && box->windowHandle()->isExposed()) {
            answer(box);
        } else {
            WhenPainted(answer);
        }
    });
}

void AskByHouseBox(Ledger& ledger)
{
    ledger.Measure("open, answer, close", [] {
        WhenPainted([](QWidget* box) {
            const QList<QPushButton*> buttons = box->findChildren<QPushButton*>();
            for (QPushButton* button : buttons) {
                if (button->property("Function").toInt() == MsgBtnYes) {
                    return button->click();
                }
            }
        });
        CVelmarMessageBox::ShowWindow(nullptr, MsgBtnYes | MsgBtnNo, MsgIconPop2, kTitle, kContent, {});
    });
}

Comparison::Round AskByToolkitBox(bool sameLook)
{
    return [sameLook](Ledger& ledger) {
        ledger.Measure("open, answer, close", [sameLook] {
            WhenPainted([](QWidget* box) { qobject_cast<QMessageBox*>(box)->button(QMessageBox::Yes)->click(); });
            const std::unique_ptr<QMessageBox> box(ToolkitBox(sameLook));
            box->exec();
        });
    };
}

void AddBox()
{
    Cast cast{"message box", "QMessageBox"};
    // Ours is on the screen as soon as it is made.
    cast.subjects[VariantOurs].make = [](QWidget*) { return HouseBox(); };
    cast.subjects[VariantOurs].change = [](QWidget* widget, bool on) {
        static_cast<CVelmarMessageBox*>(widget)->SetContent(on ? kMessage : kContent);
    };
    for (const Variant variant : {VariantSameLook, VariantPlain}) {
        cast.subjects[variant].make = [variant](QWidget*) {
            QMessageBox* box = ToolkitBox(variant == VariantSameLook);
            box->show();
            return box;
        };
        cast.subjects[variant].change = [](QWidget* widget, bool on) {
            static_cast<QMessageBox*>(widget)->setInformativeText(on ? kMessage : kContent);
        };
    }
    cast.bWindow = true;
    cast.bOpens = true;
    Life::AddComparisons(cast);
    Comparison::Add({"message box", "QMessageBox", {AskByHouseBox, AskByToolkitBox(true), AskByToolkitBox(false)}});
}

// The progress dialog

QWidget* ToolkitProgress(const char* sheet)
{
    auto* dialog = new QProgressDialog(kMessage, QString(), 0, 100);
    dialog->setWindowModality(Qt::ApplicationModal);
    dialog->setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
    dialog->setAutoClose(false);
    dialog->setMinimumDuration(0);
    dialog->setMinimumWidth(580);
    if (sheet) {
        dialog->setStyleSheet(QLatin1String(sheet));
        // The house dialog shows an animation beside its text.
        auto* animation = new QLabel(dialog);
        auto* movie = new QMovie(QStringLiteral(":/icon/gif_pop_bac.gif"), {}, animation);
        animation->setMovie(movie);
        movie->start();
        animation->move(8, 8);
    }
    return dialog;
}

void AddProgressDialog()
{
    Cast cast{"progress dialog", "QProgressDialog"};
    cast.subjects[VariantOurs].make = [](QWidget*) {
        auto* dialog = new CProgressWidget(nullptr);
        dialog->setText(kMessage);
        dialog->setValue(kValue, true);
        return dialog;
    };
    cast.subjects[VariantOurs].change = [](QWidget* widget, bool on) {
        static_cast<CProgressWidget*>(widget)->setValue(on ? kValue + 1 : kValue, true);
    };
    for (const Variant variant : {VariantSameLook, VariantPlain}) {
        cast.subjects[variant].make = [variant](QWidget*) {
            return ToolkitProgress(variant == VariantSameLook ? kProgressLook : nullptr);
        };
        cast.subjects[variant].show = [](QWidget* widget) {
            widget->show();
            static_cast<QProgressDialog*>(widget)->setValue(kValue);
        };
        cast.subjects[variant].change = [](QWidget* widget, bool on) {
            static_cast<QProgressDialog*>(widget)->setValue(on ? kValue + 1 : kValue);
        };
    }
    cast.bWindow = true;
    cast.bOpens = true;
    cast.bAnimated = true;
    Life::AddComparisons(cast);
}

// Windows without a frame

QWidget* TitleBar(QWidget* parent)
{
    auto* bar = new QWidget(parent);
    bar->setObjectName(QStringLiteral("titleBar"));
    bar->setFixedHeight(40);
    auto* layout = new QHBoxLayout(bar);
    layout->addWidget(new QLabel(kTitle));
    layout->addStretch(1);
    layout->addWidget(new QPushButton(QStringLiteral("x")));
    return bar;
}

template <typename Window>
QWidget* MainWindow(const char* sheet)
{
    auto* window = new Window;
    window->setObjectName(QStringLiteral("frameless"));
    window->setWindowFlag(Qt::FramelessWindowHint);
    if (sheet) {
        window->setStyleSheet(QLatin1String(sheet));
    }
    QWidget* bar = TitleBar(window);
    window->setMenuWidget(bar);
    window->setCentralWidget(new QLabel(kContent));
    window->resize(kWindowSize);
    if constexpr (!std::is_same_v<Window, QMainWindow>) {
        window->setTitleBar(bar);
    }
    return window;
}

template <typename Dialog>
QWidget* DialogWindow(const char* sheet)
{
    auto* dialog = new Dialog;
    dialog->setObjectName(QStringLiteral("frameless"));
    dialog->setWindowFlag(Qt::FramelessWindowHint);
    if (sheet) {
        dialog->setStyleSheet(QLatin1String(sheet));
    }
    auto* layout = new QVBoxLayout(dialog);
    QWidget* bar = TitleBar(dialog);
    layout->addWidget(bar);
    layout->addWidget(new QLabel(kContent), 1);
    dialog->resize(kDialogSize);
    if constexpr (!std::is_same_v<Dialog, QDialog>) {
        dialog->setTitleBar(bar);
    }
    return dialog;
}

using MakeWindow = QWidget* (*)(const char* sheet);

void AddFrameless(const char* name, const char* counterpart, MakeWindow ours, MakeWindow toolkit)
{
    Cast cast{name, counterpart};
    cast.subjects[VariantOurs].make = [ours](QWidget*) { return ours(kFrameLook); };
    cast.subjects[VariantSameLook].make = [toolkit](QWidget*) { return toolkit(kFrameLook); };
    cast.subjects[VariantPlain].make = [toolkit](QWidget*) { return toolkit(nullptr); };
    for (Subject& subject : cast.subjects) {
        subject.change = [](QWidget* widget, bool on) {
            widget->resize(on ? kDialogSize + QSize(20, 20) : kDialogSize);
        };
    }
    cast.bWindow = true;
    cast.bOpens = true;
    Life::AddComparisons(cast);
}

// The panels

QStringList Machine(int number)
{
    return {QStringLiteral("SN%1").arg(number, 8, 10, QLatin1Char('0')),
            QStringLiteral("10.%1.%2.%3").arg(number >> 16 & 255).arg(number >> 8 & 255).arg(number & 255)};
}

void AddMachines(QWidget* widget, int first, int count)
{
    auto* panel = static_cast<CSelectMachineBox*>(widget);
    for (int number = first; number < first + count; ++number) {
        const QStringList machine = Machine(number);
        panel->SetMachineInfo(QStringLiteral("a*%1*b*%2*c*wlan0").arg(machine.at(0), machine.at(1)), false);
    }
}

void AddTableMachines(QWidget* widget, int first, int count)
{
    auto* table = widget->findChild<QTableWidget*>();
    for (int number = first; number < first + count; ++number) {
        const QStringList machine = Machine(number);
        const int row = table->rowCount();
        table->insertRow(row);
        table->setItem(row, 0, new QTableWidgetItem(machine.at(0)));
        table->setItem(row, 1, new QTableWidgetItem(machine.at(1)));
        table->setItem(row, 2, new QTableWidgetItem(QStringLiteral("wlan0")));
    }
}

// What a host would build: a title, what is asked and a button to confirm it.
QDialog* Panel(const char* sheet, QWidget* content)
{
    auto* dialog = new QDialog;
    dialog->setObjectName(QStringLiteral("panel"));
    dialog->setWindowFlag(Qt::FramelessWindowHint);
    dialog->setAttribute(Qt::WA_TranslucentBackground);
    auto* layout = new QVBoxLayout(dialog);
    auto* title = new QHBoxLayout;
    auto* icon = new QLabel;
    icon->setPixmap(QPixmap(QStringLiteral(":/icon/lianjie 1.png")));
    title->addWidget(icon);
    title->addWidget(new QLabel(kTitle), 1);
    title->addWidget(new QPushButton(QStringLiteral("x")));
    layout->addLayout(title);
    layout->addWidget(content, 1);
    auto* confirm = new QPushButton(QStringLiteral("确定"));
    confirm->setObjectName(QStringLiteral("confirm"));
    layout->addWidget(confirm);
    if (sheet) {
        dialog->setStyleSheet(QLatin1String(sheet));
    }
    dialog->setFixedSize(kPanelSize);
    return dialog;
}

QDialog* MachinePanel(const char* sheet)
{
    auto* content = new QWidget;
    auto* layout = new QVBoxLayout(content);
    auto* top = new QHBoxLayout;
    top->addWidget(new QLabel(kMessage), 1);
    top->addWidget(new QPushButton(QStringLiteral("设置")));
    top->addWidget(new QPushButton(QStringLiteral("帮助")));
    layout->addLayout(top);
    auto* table = new QTableWidget(0, 3);
    table->setAlternatingRowColors(true);
    table->setSelectionBehavior(QAbstractItemView::SelectRows);
    table->setShowGrid(false);
    table->verticalHeader()->hide();
    layout->addWidget(table);
    auto* address = new QHBoxLayout;
    address->addWidget(new QLabel(QStringLiteral("IP：")), 1);
    address->addWidget(new QPushButton(QStringLiteral("输入")));
    layout->addLayout(address);
    layout->addWidget(new QPushButton(QStringLiteral("重新扫描")));
    return Panel(sheet, content);
}

void AddMachinePanel()
{
    Cast cast{"machine panel", "QDialog with QTableWidget"};
    cast.subjects[VariantOurs].make = [](QWidget*) {
        auto* panel = new CSelectMachineBox(nullptr);
        panel->setAttribute(Qt::WA_DeleteOnClose, false);
        AddMachines(panel, 0, kMachines);
        return panel;
    };
    cast.subjects[VariantOurs].fill = [](QWidget* widget, int first, int count) {
        AddMachines(widget, kMachines + first, count);
    };
    for (const Variant variant : {VariantSameLook, VariantPlain}) {
        cast.subjects[variant].make = [variant](QWidget*) {
            QDialog* panel = MachinePanel(variant == VariantSameLook ? kPanelLook : nullptr);
            AddTableMachines(panel, 0, kMachines);
            return panel;
        };
        cast.subjects[variant].fill = [](QWidget* widget, int first, int count) {
            AddTableMachines(widget, kMachines + first, count);
        };
    }
    for (Subject& subject : cast.subjects) {
        subject.change = [](QWidget* widget, bool on) { widget->findChild<QTableView*>()->selectRow(on ? 1 : 0); };
    }
    cast.bWindow = true;
    cast.bOpens = true;
    Life::AddComparisons(cast);
}

void AddSelectPanel()
{
    Cast cast{"select box", "QDialog"};
    cast.subjects[VariantOurs].make = [](QWidget*) {
        auto* box = new CVelmarSelectBox(nullptr);
        box->setAttribute(Qt::WA_DeleteOnClose, false);
        box->SetBoxInfo(QStringLiteral(":/icon/lianjie 1.png"), kTitle, QStringLiteral("确定"));
        box->SetBaseSize(kPanelSize.width(), kPanelSize.height());
        box->SetChildUI(new QLabel(kContent));
        return box;
    };
    cast.subjects[VariantOurs].change = [](QWidget* widget, bool on) {
        static_cast<CVelmarSelectBox*>(widget)->SetHintText(on ? kMessage : QString());
    };
    for (const Variant variant : {VariantSameLook, VariantPlain}) {
        cast.subjects[variant].make = [variant](QWidget*) {
            return Panel(variant == VariantSameLook ? kPanelLook : nullptr, new QLabel(kContent));
        };
        cast.subjects[variant].change = [](QWidget* widget, bool on) {
            widget->findChildren<QLabel*>().at(1)->setText(on ? kMessage : kTitle);
        };
    }
    cast.bWindow = true;
    cast.bOpens = true;
    Life::AddComparisons(cast);
}

} // namespace

void AddDialogComparisons()
{
    AddBox();
    AddProgressDialog();
    AddSelectPanel();
    AddMachinePanel();
    AddFrameless("frameless main window", "QMainWindow", MainWindow<FramelessMainWindow>, MainWindow<QMainWindow>);
    AddFrameless("frameless window of its own", "QMainWindow", MainWindow<PureQtFramelessWindow>,
                 MainWindow<QMainWindow>);
    AddFrameless("frameless dialog", "QDialog", DialogWindow<FramelessDialog>, DialogWindow<QDialog>);
}

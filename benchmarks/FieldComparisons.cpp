#include <benchmarks/Families.h>
#include <benchmarks/Life.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/fields/CPlainTextEdit.h>
#include <CustomControls/fields/CTextBrowser.h>
#include <CustomControls/fields/CTextEdit.h>
#include <CustomControls/machine/CSelectMachineIPLineEdit.h>

#include <QContextMenuEvent>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>

namespace {

constexpr QRect kFieldPlace(20, 20, 240, 34);
constexpr QRect kViewPlace(20, 20, 500, 300);
constexpr QSize kAddressSize(340, 90);
constexpr int kLines = 200;

const QString kName = QStringLiteral("长度：");
const QString kUnit = QStringLiteral("mm");

constexpr char kFieldLook[] =
    "#field{background:rgb(246,246,246);}#field QLabel{color:rgb(0,0,0);}#field #unit{color:rgb(140,151,156);}"
    "#frame{background-color:rgb(255,255,255);border:1px solid rgb(196,196,196);border-radius:3px;}"
    "QDoubleSpinBox{border:none;background-color:rgb(255,255,255);color:rgb(0,0,0);}";
constexpr char kViewLook[] = "QAbstractScrollArea{background:#ffffff;border:1px solid #c4c4c4;color:#333333;}";
constexpr char kAddressLook[] =
    "#address{background:#ffffff;border:1px solid #bbbbbb;border-radius:4px;}"
    "QLineEdit{border:1px solid #cccccc;border-radius:4px;padding:6px 10px;color:#333333;background-color:#ffffff;}";

// What a host would put together from the toolkit: a caption, a number to type in, a unit.
QWidget* Field(QWidget* parent, const char* sheet)
{
    auto* field = new QWidget(parent);
    field->setObjectName(QStringLiteral("field"));
    auto* name = new QLabel(kName);
    name->setFont(FontCn_14);
    auto* frame = new QWidget;
    frame->setObjectName(QStringLiteral("frame"));
    auto* edit = new QDoubleSpinBox;
    edit->setButtonSymbols(QAbstractSpinBox::NoButtons);
    edit->setMaximum(1000.0);
    edit->setValue(10.0);
    edit->setFont(FontCnMedium_14);
    auto* unit = new QLabel(kUnit);
    unit->setObjectName(QStringLiteral("unit"));
    auto* inner = new QHBoxLayout(frame);
    inner->setContentsMargins(6, 0, 6, 0);
    inner->addWidget(edit);
    inner->addWidget(unit);
    auto* layout = new QHBoxLayout(field);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(name);
    layout->addWidget(frame);
    if (sheet) {
        field->setStyleSheet(QLatin1String(sheet));
    }
    field->setGeometry(kFieldPlace);
    return field;
}

void AddNumberField()
{
    Cast cast{"number field", "QLabel, QDoubleSpinBox and QLabel"};
    cast.subjects[VariantOurs].make = [](QWidget* parent) {
        auto* field = new CTextEdit(parent, kName, QStringLiteral("10"), kUnit, 120);
        field->setGeometry(kFieldPlace);
        return field;
    };
    cast.subjects[VariantOurs].change = [](QWidget* widget, bool on) {
        static_cast<CTextEdit*>(widget)->SetValue(on ? 20.0 : 10.0);
    };
    cast.subjects[VariantSameLook].make = [](QWidget* parent) { return Field(parent, kFieldLook); };
    cast.subjects[VariantPlain].make = [](QWidget* parent) { return Field(parent, nullptr); };
    for (Subject* subject : {&cast.subjects[VariantSameLook], &cast.subjects[VariantPlain]}) {
        subject->change = [](QWidget* widget, bool on) {
            widget->findChild<QDoubleSpinBox*>()->setValue(on ? 20.0 : 10.0);
        };
    }
    Life::AddComparisons(cast);
}

QWidget* Address(QWidget* parent, const char* sheet)
{
    auto* box = new QWidget(parent, Qt::Window | Qt::FramelessWindowHint);
    box->setObjectName(QStringLiteral("address"));
    box->setAttribute(Qt::WA_StyledBackground);
    box->setFixedSize(kAddressSize);
    auto* layout = new QVBoxLayout(box);
    auto* title = new QLabel(QStringLiteral("输入 IP 地址"));
    title->setFont(FontCn_14);
    layout->addWidget(title);
    auto* edit = new QLineEdit;
    edit->setFont(FontCn_14);
    edit->setPlaceholderText(QStringLiteral("请输入IPv4地址"));
    layout->addWidget(edit);
    if (sheet) {
        box->setStyleSheet(QLatin1String(sheet));
    }
    return box;
}

void AddAddressField()
{
    Cast cast{"address field", "QWidget with QLineEdit"};
    cast.subjects[VariantOurs].make = [](QWidget* parent) {
        auto* field = new CSelectMachineIPLineEdit(parent);
        field->setAttribute(Qt::WA_DeleteOnClose, false);
        return field;
    };
    cast.subjects[VariantSameLook].make = [](QWidget* parent) { return Address(parent, kAddressLook); };
    cast.subjects[VariantPlain].make = [](QWidget* parent) { return Address(parent, nullptr); };
    for (Subject& subject : cast.subjects) {
        subject.change = [](QWidget* widget, bool on) {
            widget->findChild<QLineEdit*>()->setText(on ? QStringLiteral("10.0.0.1") : QString());
        };
    }
    cast.bWindow = true;
    Life::AddComparisons(cast);
}

QString Text(int lines)
{
    QString text;
    for (int line = 0; line < lines; ++line) {
        text += QStringLiteral("G1 X%1 Y%2 F1200\n").arg(line).arg(line * 2);
    }
    return text;
}

template <typename View>
Subject TextView(const char* sheet)
{
    Subject subject;
    subject.make = [sheet](QWidget* parent) {
        auto* view = new View(parent);
        view->setFont(FontCn_14);
        if (sheet) {
            view->setStyleSheet(QLatin1String(sheet));
        }
        view->setPlainText(Text(kLines));
        view->setGeometry(kViewPlace);
        return view;
    };
    subject.change = [](QWidget* widget, bool on) {
        auto* view = static_cast<View*>(widget);
        if (on) {
            view->selectAll();
        } else {
            QTextCursor cursor = view->textCursor();
            cursor.clearSelection();
            view->setTextCursor(cursor);
        }
    };
    subject.fill = [](QWidget* widget, int first, int count) {
        auto* view = static_cast<View*>(widget);
        for (int line = first; line < first + count; ++line) {
            if constexpr (std::is_base_of_v<QPlainTextEdit, View>) {
                view->appendPlainText(QStringLiteral("line %1").arg(line));
            } else {
                view->append(QStringLiteral("line %1").arg(line));
            }
        }
    };
    return subject;
}

} // namespace

void AddFieldComparisons()
{
    AddNumberField();
    AddAddressField();
    Life::AddComparisons({"plain text view",
                          "QPlainTextEdit",
                          {TextView<CPlainTextEdit>(kViewLook), TextView<QPlainTextEdit>(kViewLook),
                           TextView<QPlainTextEdit>(nullptr)}});
    Life::AddComparisons(
        {"text browser",
         "QTextBrowser",
         {TextView<CTextBrowser>(kViewLook), TextView<QTextBrowser>(kViewLook), TextView<QTextBrowser>(nullptr)}});
}

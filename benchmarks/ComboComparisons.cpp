#include <benchmarks/Families.h>
#include <benchmarks/Life.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/menus/CComboBox.h>
#include <CustomControls/menus/CTableComboBox.h>
#include <CustomControls/menus/CVelmarMenu.h>
#include <CustomControls/menus/CXCombobox.h>

#include <QAbstractItemView>

namespace {

constexpr int kEntries = 20;
constexpr QSize kSize(200, 28);
constexpr QPoint kPlace(20, 20);

constexpr char kDarkLook[] =
    "QComboBox{background:#1d1c1f;border:1px solid #000000;border-radius:2px;padding-left:6px;color:#b7bec4;}"
    "QComboBox:hover,QComboBox:on{border:2px solid #0071bc;padding-left:5px;}"
    "QComboBox::drop-down{width:24px;background:transparent;border-left:0px;}"
    "QComboBox QAbstractItemView{background:#212024;color:#c7cfd6;border:1px solid #151515;"
    "selection-background-color:#0071bc;}"
    "QComboBox QAbstractItemView::item{height:30px;padding-left:8px;}";
constexpr char kLightLook[] =
    "QComboBox{background:#FFFFFF;border:1px solid #cccccc;border-radius:2px;padding-left:6px;}"
    "QComboBox::hover{border:1px solid #17a061;}"
    "QComboBox::drop-down{width:18px;border-top-right-radius:2px;border-bottom-right-radius:2px;background:#FFFFFF;"
    "border:none; image:url(:/icon/ico_current_arrow_down_nor.png);}"
    "QComboBox::disabled{color:#8c979c;}"
    "QAbstractItemView{border:1px solid #cccccc;background:#FFFFFF;}"
    "QAbstractItemView::item{padding-left:6px;border:none;}";

QString Text(int entry)
{
    return QStringLiteral("entry %1").arg(entry);
}

void Add(QWidget* widget, int first, int count)
{
    for (int entry = first; entry < first + count; ++entry) {
        static_cast<QComboBox*>(widget)->addItem(Text(entry));
    }
}

void AddOurs(QWidget* widget, int first, int count)
{
    for (int entry = first; entry < first + count; ++entry) {
        static_cast<CComboBox*>(widget)->AddComboItem(Text(entry));
    }
}

void Choose(QWidget* widget, bool on)
{
    static_cast<QComboBox*>(widget)->setCurrentIndex(on ? 1 : 0);
}

QWidget* Popup(QWidget* widget)
{
    return static_cast<QComboBox*>(widget)->view();
}

Subject Toolkit(const std::function<QComboBox*(QWidget*)>& make, const char* sheet)
{
    Subject subject;
    subject.make = [make, sheet](QWidget* parent) {
        QComboBox* box = make(parent);
        box->setFont(FontCn_14);
        box->setFixedSize(kSize);
        box->move(kPlace);
        if (sheet) {
            box->setStyleSheet(QLatin1String(sheet));
        }
        Add(box, 0, kEntries);
        return box;
    };
    subject.change = Choose;
    subject.open = [](QWidget* widget) { static_cast<QComboBox*>(widget)->showPopup(); };
    subject.close = [](QWidget* widget) { static_cast<QComboBox*>(widget)->hidePopup(); };
    subject.popup = Popup;
    subject.fill = Add;
    return subject;
}

QComboBox* Plain(QWidget* parent)
{
    return new QComboBox(parent);
}

Subject Dark()
{
    Subject subject = Toolkit(Plain, nullptr);
    subject.make = [](QWidget* parent) {
        auto* box = new CComboBox(parent);
        box->SetBoxSize(kSize.width(), kSize.height(), 0);
        box->move(kPlace);
        AddOurs(box, 0, kEntries);
        return box;
    };
    subject.popup = nullptr; // its list lies in the window
    subject.fill = AddOurs;
    return subject;
}

void AddBox(const char* name, const Subject& ours, const char* look)
{
    Cast cast{name, "QComboBox", {ours, Toolkit(Plain, look), Toolkit(Plain, nullptr)}};
    cast.bOpens = true;
    Life::AddComparisons(cast);
}

} // namespace

void AddComboComparisons()
{
    AddBox("combo box", Dark(), kDarkLook);
    AddBox("table combo box", Toolkit([](QWidget* parent) { return new CTableComboBox(parent); }, nullptr), kLightLook);
    AddBox("combo box that reports focus", Toolkit([](QWidget* parent) { return new CXCombobox(parent); }, kLightLook),
           kLightLook);
}

#include <benchmarks/Families.h>
#include <benchmarks/Life.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/buttons/CIconButton.h>
#include <CustomControls/buttons/CSelectButton.h>
#include <CustomControls/buttons/CUnitButton.h>
#include <CustomControls/buttons/CVelmarButton.h>
#include <CustomControls/fields/CSelectBox.h>

#include <QCheckBox>
#include <QCoreApplication>
#include <QEnterEvent>
#include <QHoverEvent>
#include <QPushButton>
#include <QToolButton>

namespace {

constexpr QRect kPlace(20, 20, 80, 40);
constexpr QRect kPicturePlace(20, 20, 90, 70);
constexpr QRect kSwitchPlace(20, 20, 220, 31);

constexpr char kLook[] = "QPushButton{border:none;border-radius:4px;background-color:rgb(230,230,230);"
                         "color:rgb(102,102,102);%1}"
                         "QPushButton:hover{background-color:rgb(194,211,231);color:rgb(50,50,50);%2}"
                         "QPushButton:pressed{background-color:rgb(38,120,218);color:rgb(255,255,255);}";
constexpr char kFrameLook[] = "QAbstractButton{border:1px solid rgb(196,196,196);border-radius:5px;background:white;"
                              "color:rgb(51,51,51);}"
                              "QAbstractButton:hover{border-color:rgb(73,135,89);}"
                              "QAbstractButton:checked{border:2px solid rgb(23,160,97);}";
constexpr char kSwitchLook[] = "QCheckBox{color:rgb(0,0,0);spacing:40px;}"
                               "QCheckBox::indicator{width:42px;height:22px;}"
                               "QCheckBox::indicator:unchecked{image:url(:/icon/gcode/img_check_off.png);}"
                               "QCheckBox::indicator:checked{image:url(:/icon/gcode/img_check_on.png);}";

constexpr char kNormalIcon[] = "url(:/icon/simcontrol/ico_warning_line_b_nor.png)";
constexpr char kHoverIcon[] = "url(:/icon/simcontrol/ico_warning_line_b_hover.png)";

const QString kPicture = QStringLiteral(":/icon/selectbox/stock/ico_scanning_box.png");
const QString kText = QStringLiteral("毛坯");

CVelmarButton* ThemedButton(QWidget* parent, bool withIcon)
{
    auto* button = new CVelmarButton(ButtonTypeIconTextChoose, false, true, 0, parent);
    button->SetButtonText(kText, false);
    button->SetBtnRadius(4);
    if (withIcon) {
        const QString normal = QString::fromLatin1(kNormalIcon);
        const QString hover = QString::fromLatin1(kHoverIcon);
        button->SetButtonIcon(normal, normal, hover, normal);
        button->SetButtonImagePos(4, 0, 4, 0, 16, 16);
    }
    button->setGeometry(kPlace);
    return button;
}

QPushButton* PushButton(QWidget* parent, bool withIcon, const QString& sheet)
{
    auto* button = new QPushButton(kText, parent);
    button->setFont(FontCn_14);
    if (withIcon) {
        button->setIconSize(QSize(16, 16));
        if (sheet.isEmpty()) {
            button->setIcon(QIcon(QStringLiteral(":/icon/simcontrol/ico_warning_line_b_nor.png")));
        }
    }
    if (!sheet.isEmpty()) {
        button->setStyleSheet(sheet);
    }
    button->setGeometry(kPlace);
    return button;
}

QString Look(bool withIcon)
{
    const auto icon = [withIcon](const char* url) {
        return withIcon ? QStringLiteral("icon:%1;").arg(QLatin1String(url)) : QString();
    };
    return QString::fromLatin1(kLook).arg(icon(kNormalIcon), icon(kHoverIcon));
}

// The mouse comes and goes, as the application tells a widget.
void Hover(QWidget* widget, bool on)
{
    const QPointF place = on ? QPointF(5, 5) : QPointF(-1, -1);
    widget->setAttribute(Qt::WA_UnderMouse, on);
    if (on) {
        QEnterEvent enter(place, place, place);
        QCoreApplication::sendEvent(widget, &enter);
    } else {
        QEvent leave(QEvent::Leave);
        QCoreApplication::sendEvent(widget, &leave);
    }
    if (widget->testAttribute(Qt::WA_Hover)) {
        QHoverEvent hover(on ? QEvent::HoverEnter : QEvent::HoverLeave, place, place, QPointF(-1, -1));
        QCoreApplication::sendEvent(widget, &hover);
    }
}

// Wears each look as a whole sheet of its own, as our labels do, instead of one sheet with a rule for each state.
class RestyledButton : public QPushButton
{
public:
    RestyledButton(QWidget* parent, bool withIcon)
        : QPushButton(kText, parent)
        , m_bWithIcon(withIcon)
    {
        setFont(FontCn_14);
        setIconSize(QSize(16, 16));
        setGeometry(kPlace);
        Wear("rgb(230,230,230)", "rgb(102,102,102)", kNormalIcon);
    }

protected:
    void enterEvent(QEnterEvent* event) override
    {
        Wear("rgb(194,211,231)", "rgb(50,50,50)", kHoverIcon);
        QPushButton::enterEvent(event);
    }

    void leaveEvent(QEvent* event) override
    {
        Wear("rgb(230,230,230)", "rgb(102,102,102)", kNormalIcon);
        QPushButton::leaveEvent(event);
    }

private:
    void Wear(const char* background, const char* text, const char* icon)
    {
        const QString sheet = QStringLiteral("border:none;border-radius:4px;background-color:%1;color:%2;%3");
        setStyleSheet(sheet.arg(QLatin1String(background), QLatin1String(text),
                                m_bWithIcon ? QStringLiteral("icon:%1;").arg(QLatin1String(icon)) : QString()));
    }

    bool m_bWithIcon;
};

void Check(QWidget* widget, bool on)
{
    static_cast<QAbstractButton*>(widget)->setChecked(on);
}

void AddThemedButton(const char* name, bool withIcon)
{
    const auto toolkit = [withIcon](const QString& sheet) {
        return [=](QWidget* parent) { return PushButton(parent, withIcon, sheet); };
    };
    Cast cast{name, "QPushButton"};
    cast.subjects[VariantOurs].make = [withIcon](QWidget* parent) { return ThemedButton(parent, withIcon); };
    cast.subjects[VariantSameLook].make = toolkit(Look(withIcon));
    cast.subjects[VariantPlain].make = toolkit(QString());
    for (Subject& subject : cast.subjects) {
        subject.change = Hover;
    }
    Life::AddComparisons(cast);

    // What is left beside a button that pays the same for its looks.
    Cast restyled{std::string(name) + ", each look a sheet", "QPushButton"};
    restyled.subjects[VariantOurs] = cast.subjects[VariantOurs];
    restyled.subjects[VariantSameLook].make = [withIcon](QWidget* parent) {
        return new RestyledButton(parent, withIcon);
    };
    restyled.subjects[VariantSameLook].change = Hover;
    Life::AddComparisons(restyled);
}

template <typename Button>
QWidget* PictureButton(QWidget* parent, const QString& sheet)
{
    auto* button = new Button(parent);
    button->setText(kText);
    button->setCheckable(true);
    button->setGeometry(kPicturePlace);
    if constexpr (std::is_same_v<Button, QToolButton>) {
        button->setFont(FontCn_14);
        button->setIcon(QIcon(kPicture));
        button->setIconSize(QSize(40, 40));
        button->setToolButtonStyle(Qt::ToolButtonTextUnderIcon);
    } else {
        button->setIcon(kPicture);
    }
    if (!sheet.isEmpty()) {
        button->setStyleSheet(sheet);
    }
    return button;
}

void AddSelectButton()
{
    Cast cast{"select button", "QToolButton"};
    cast.subjects[VariantOurs].make = [](QWidget* parent) { return PictureButton<CSelectButton>(parent, {}); };
    cast.subjects[VariantSameLook].make = [](QWidget* parent) {
        return PictureButton<QToolButton>(parent, QLatin1String(kFrameLook));
    };
    cast.subjects[VariantPlain].make = [](QWidget* parent) { return PictureButton<QToolButton>(parent, {}); };
    for (Subject& subject : cast.subjects) {
        subject.change = Check;
    }
    Life::AddComparisons(cast);
}

QWidget* CheckBox(QWidget* parent, const QString& sheet)
{
    auto* box = new QCheckBox(kText, parent);
    box->setFont(FontCnMedium_14);
    box->setLayoutDirection(Qt::RightToLeft);
    box->setGeometry(kSwitchPlace);
    if (!sheet.isEmpty()) {
        box->setStyleSheet(sheet);
    }
    return box;
}

void AddSwitch()
{
    Cast cast{"switch with caption", "QCheckBox"};
    cast.subjects[VariantOurs].make = [](QWidget* parent) {
        auto* box = new CSelectBox(kText, false, QString(), parent);
        box->setGeometry(kSwitchPlace);
        return box;
    };
    cast.subjects[VariantOurs].change = [](QWidget* widget, bool on) {
        static_cast<CSelectBox*>(widget)->SetChecked(on);
    };
    cast.subjects[VariantSameLook].make = [](QWidget* parent) { return CheckBox(parent, QLatin1String(kSwitchLook)); };
    cast.subjects[VariantSameLook].change = Check;
    cast.subjects[VariantPlain].make = [](QWidget* parent) { return CheckBox(parent, {}); };
    cast.subjects[VariantPlain].change = Check;
    Life::AddComparisons(cast);
}

} // namespace

void AddButtonComparisons()
{
    AddThemedButton("button", false);
    AddThemedButton("button with icons", true);
    AddSelectButton();
    AddSwitch();
}

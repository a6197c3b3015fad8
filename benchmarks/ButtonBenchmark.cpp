#include <benchmarks/Comparison.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/buttons/CVelmarButton.h>

#include <QPixmap>
#include <QPushButton>
#include <QTest>

namespace {

constexpr QRect kPlace(20, 20, 80, 40);

constexpr char kLook[] = "QPushButton{border:none;border-radius:4px;background-color:rgb(230,230,230);"
                         "color:rgb(102,102,102);%1}"
                         "QPushButton:hover{background-color:rgb(194,211,231);color:rgb(50,50,50);%2}"
                         "QPushButton:pressed{background-color:rgb(38,120,218);color:rgb(255,255,255);}";

constexpr char kNormalIcon[] = "url(:/icon/simcontrol/ico_warning_line_b_nor.png)";
constexpr char kHoverIcon[] = "url(:/icon/simcontrol/ico_warning_line_b_hover.png)";

CVelmarButton* Ours(QWidget* parent, bool withIcon)
{
    auto* button = new CVelmarButton(ButtonTypeIconTextChoose, false, true, 0, parent);
    button->SetButtonText(QStringLiteral("OK"), false);
    button->SetBtnRadius(4);
    if (withIcon) {
        const QString normal = QString::fromLatin1(kNormalIcon);
        const QString hover = QString::fromLatin1(kHoverIcon);
        button->SetButtonIcon(normal, normal, hover, normal);
        button->SetButtonImagePos(4, 0, 4, 0, 16, 16);
    }
    return button;
}

QPushButton* SameLook(QWidget* parent, bool withIcon)
{
    auto* button = new QPushButton(QStringLiteral("OK"), parent);
    button->setFont(FontCn_14);
    button->setIconSize(QSize(16, 16));
    const auto icon = [withIcon](const char* url) {
        return withIcon ? QStringLiteral("icon:%1;").arg(QLatin1String(url)) : QString();
    };
    button->setStyleSheet(QString::fromLatin1(kLook).arg(icon(kNormalIcon), icon(kHoverIcon)));
    return button;
}

// Wears each look as a whole sheet of its own, as our labels do, instead of one sheet with a rule for each state.
class RestyledButton : public QPushButton
{
public:
    RestyledButton(QWidget* parent, bool withIcon)
        : QPushButton(QStringLiteral("OK"), parent)
        , m_bWithIcon(withIcon)
    {
        setFont(FontCn_14);
        setIconSize(QSize(16, 16));
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

QPushButton* Restyled(QWidget* parent, bool withIcon)
{
    return new RestyledButton(parent, withIcon);
}

QPushButton* Plain(QWidget* parent, bool)
{
    return new QPushButton(QStringLiteral("OK"), parent);
}

// The mouse enters the button, the window is painted, the mouse leaves and the window is painted again.
template <typename Make>
Comparison::Run Hover(Make make, bool withIcon)
{
    return [=](benchmark::State& state) {
        QWidget window;
        window.resize(400, 200);
        make(&window, withIcon)->setGeometry(kPlace);
        window.show();
        if (!QTest::qWaitForWindowExposed(&window)) {
            state.SkipWithError("the window does not show");
            return;
        }
        for ([[maybe_unused]] auto step : state) {
            QTest::mouseMove(window.windowHandle(), kPlace.center());
            QCoreApplication::processEvents();
            QTest::mouseMove(window.windowHandle(), QPoint(300, 150));
            QCoreApplication::processEvents();
        }
    };
}

template <typename Make>
Comparison::Run Paint(Make make)
{
    return [=](benchmark::State& state) {
        QWidget window;
        QWidget* button = make(&window, true);
        button->setGeometry(kPlace);
        QPixmap pixmap(button->size());
        for ([[maybe_unused]] auto step : state) {
            button->render(&pixmap);
        }
    };
}

// Made, shown for the first time and gone.
template <typename Make>
Comparison::Run Create(Make make)
{
    return [=](benchmark::State& state) {
        QWidget window;
        QPixmap pixmap(kPlace.size());
        for ([[maybe_unused]] auto step : state) {
            QWidget* button = make(&window, true);
            button->setGeometry(kPlace);
            button->render(&pixmap);
            delete button;
        }
    };
}

const Comparison create =
    Comparison("button: create and first paint").Ours(Create(Ours)).SameLook(Create(SameLook)).Plain(Create(Plain));

const Comparison paint = Comparison("button: paint").Ours(Paint(Ours)).SameLook(Paint(SameLook)).Plain(Paint(Plain));

// A host may read the sheet of each label in each state, so a change of look sets whole sheets: more than half of a
// hover, and where an image changes far more, since the toolkit reads the image's file with each sheet. The lines "each
// look a sheet" tell what is left beside a counterpart that pays the same.
const Comparison hover = Comparison("button: hover in and out")
                             .Ours(Hover(Ours, false))
                             .SameLook(Hover(SameLook, false))
                             .Plain(Hover(Plain, false))
                             .Goal(2.0);

const Comparison hoverWithIcons = Comparison("button: hover in and out, another icon while hovered")
                                      .Ours(Hover(Ours, true))
                                      .SameLook(Hover(SameLook, true))
                                      .Plain(Hover(Plain, true))
                                      .Goal(2.0);

const Comparison hoverRestyled =
    Comparison("button: hover in and out, each look a sheet").Ours(Hover(Ours, false)).SameLook(Hover(Restyled, false));

const Comparison hoverRestyledWithIcons = Comparison("button: hover in and out with icons, each look a sheet")
                                              .Ours(Hover(Ours, true))
                                              .SameLook(Hover(Restyled, true));

} // namespace

#include <benchmarks/Comparison.h>
#include <benchmarks/Waiting.h>

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QWindow>

#include <functional>

namespace {

const QString kTitle = QStringLiteral("删除文件");
const QString kContent = QStringLiteral("确定要删除该文件吗？删除以后将无法恢复。");

/** The panel, the bold title line, the text and the buttons of the house box. */
const char kSameLook[] =
    "QMessageBox{background:rgba(246, 246, 246, 1);border:1px solid rgba(187, 187, 187, 1);border-radius:4px;}"
    "QLabel{color:rgba(51, 51, 51, 1);background:transparent;border:0px solid red;}"
    "QLabel#qt_msgbox_label{min-width:428px;font-weight:bold;}"
    "QLabel#qt_msgbox_informativelabel{min-width:428px;}"
    "QPushButton{border:1px solid #c4c4c4;background:#f6f6f6;color:#333333;border-radius:4px;text-align:center;"
    "min-width:114px;max-width:114px;min-height:32px;max-height:32px;}"
    "QPushButton:default{border:1px solid transparent;background:#188553;color:#f5f5f5;}"
    "QPushButton::focus{border: 3px solid #58ff98;outline-offset:0px;}"
    "QPushButton::hover{background:#ffffff;}QPushButton::pressed{background:#aeaeae;}";

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

/** The house font for every box: a default font without Chinese glyphs would make the toolkit's one look slow. */
class HouseFont
{
public:
    HouseFont() { QApplication::setFont(FontCn_16); }
    ~HouseFont() { QApplication::setFont(m_before); }
    Q_DISABLE_COPY_MOVE(HouseFont)

private:
    QFont m_before = QApplication::font();
};

void OpenAndAnswer(benchmark::State& state)
{
    const HouseFont font;
    for ([[maybe_unused]] auto step : state) {
        WhenPainted([](QWidget* box) {
            const QList<QPushButton*> buttons = box->findChildren<QPushButton*>();
            for (QPushButton* button : buttons) {
                if (button->property("Function").toInt() == MsgBtnYes) {
                    return button->click();
                }
            }
        });
        benchmark::DoNotOptimize(
            CVelmarMessageBox::ShowWindow(nullptr, MsgBtnYes | MsgBtnNo, MsgIconPop2, kTitle, kContent, {}));
    }
}

void OpenAndAnswerToolkit(benchmark::State& state, bool sameLook)
{
    const HouseFont font;
    for ([[maybe_unused]] auto step : state) {
        WhenPainted([](QWidget* box) { qobject_cast<QMessageBox*>(box)->button(QMessageBox::Yes)->click(); });
        QMessageBox box(QMessageBox::Question, kTitle, kTitle, QMessageBox::Yes | QMessageBox::No, nullptr,
                        Qt::Dialog | Qt::FramelessWindowHint);
        box.setInformativeText(kContent);
        if (sameLook) {
            box.setStyleSheet(QLatin1String(kSameLook));
            box.setAttribute(Qt::WA_TranslucentBackground);
            box.setIconPixmap(QPixmap(QStringLiteral(":/icon/img_pop_2.png")));
        }
        benchmark::DoNotOptimize(box.exec());
    }
}

double WaitWithLoadingBox()
{
    const CVelmarMessageBox box(nullptr, 0, MsgIconLoading, kTitle, kContent, false, false, {});
    return Waiting::ProcessorTimeOfASecond();
}

const Comparison openAndAnswer = Comparison("message box: open, paint, answer, close")
                                     .Ours(OpenAndAnswer)
                                     .SameLook([](benchmark::State& state) { OpenAndAnswerToolkit(state, true); })
                                     .Plain([](benchmark::State& state) { OpenAndAnswerToolkit(state, false); })
                                     .Goal(1.0);

// The counterpart is the animation alone, which any such box needs.
const Comparison rest = Comparison("message box: processor time of a second of loading, beside the animation")
                            .Counted(WaitWithLoadingBox, Waiting::ProcessorTimeOfAnimation);

} // namespace

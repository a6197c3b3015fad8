#include <CustomControls/messagebox/CVelmarMessageBox.h>

#include "ui_CVelmarMessageBox.h"

#include <CorvaneBase/CDebugLog.h>
#include <CorvaneBase/CorvaneConstants.h>
#include <CorvaneBase/CorvaneFonts.h>
#include <CorvaneBase/CorvaneSignalHelper.h>
#include <CorvaneBase/CorvaneTextHelper.h>
#include <CorvaneBase/CorvaneToolBitHelper.h>
#include <CustomControls/accessibility/AccessibleControl.h>
#include <CustomControls/accessibility/AccessibleFactory.h>
#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/accessibility/TranslatedName.h>
#include <CustomControls/messagebox/CVelmarMessageBoxAccessible.h>
#include <CustomControls/messagebox/CVelmarMessageListItem.h>
#include <CustomControls/messagebox/MovieCopy_p.h>

#include <QApplication>
#include <QDebug>
#include <QDesktopServices>
#include <QDir>
#include <QEventLoop>
#include <QFileInfo>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QMouseEvent>
#include <QMovie>
#include <QProcess>
#include <QPushButton>
#include <QScreen>
#include <QScrollBar>
#include <QShortcut>
#include <QTextBrowser>
#include <QTextDocument>
#include <QTimer>
#include <QUrl>
#include <QVBoxLayout>

#include <bitset>

namespace {

const QString kCloseButtonSheet =
    QStringLiteral("QPushButton{border:none;background:transparent;image:url(:/icon/icon_title_close.png);}"
                   "QPushButton::hover{image:url(:/icon/icon_title_close_w.png);}");
const QString kNoTitleSheet =
    QStringLiteral("QWidget#widget{border-bottom:0px solid #D5D5D5;border-top:0px solid #D5D5D5;}");
const QString kContentBrowserSheet = QStringLiteral("background:transparent;color:#333333;border:0px solid red;");
const QString kContentLabelSheet =
    QStringLiteral("color:rgba(51, 51, 51, 1);background:transparent;border:0px solid red;");
const QString kPrimaryButtonSheet = QStringLiteral(
    "QPushButton{border:1px solid transparent;background:#188553;color:#f5f5f5;border-radius:4px;}"
    "QPushButton::focus{border: 3px solid #58ff98;outline-offset:0px;}"
    "QPushButton::hover{background:#2ab475;color:#FFFFFF;}QPushButton::pressed{background:#188553;color:#FFFFFF;}");
const QString kOtherButtonSheet = QStringLiteral(
    "QPushButton{border:1px solid #c4c4c4;background:#f6f6f6;color:#333333;border-radius:4px;text-align:center;}"
    "QPushButton::focus{border: 3px solid #58ff98;outline-offset:0px;}"
    "QPushButton::hover{background:#ffffff;}QPushButton::pressed{background:#aeaeae;}");
const QString kLoadingIconSheet = QStringLiteral("background:transparent;border:none;");
const QString kIconSheet = QStringLiteral("background:transparent;border:none;image:url(:/icon/img_pop_%1.png)");
const QString kLoadingAnimation = QStringLiteral(":/icon/gif_pop_bac.gif");

const QString kConfirmSentenceSheet = QStringLiteral("color:#333333;");
const QString kToolListSheet = QStringLiteral(
    "QListWidget {background: #F6F6F6;border: 1px solid #e5e5e5;border-radius: 4px;padding: 0;margin: 0;}"
    "QListWidget::item {border: 1px solid #e5e5e5;padding: 0;margin: 0;}"
    "QListWidget::item:selected {background: #e6f7ff;}"
    "QScrollBar:vertical {    border: none;    background: #f0f0f0;    width: 12px;    margin: 0px 0px 0px 0px;}"
    "QScrollBar::handle:vertical {    background: #cccccc;    min-height: 40px;    border-radius: 6px;}"
    "QScrollBar::handle:vertical:hover {    background: #aaaaaa;}"
    "QScrollBar::add-line:vertical,QScrollBar::sub-line:vertical {    border: none;    background: none;    "
    "height: 0px;    width: 0px;}"
    "QScrollBar::add-page:vertical,QScrollBar::sub-page:vertical {    background: none;}");

const char kFunctionProperty[] = "Function";
const char kDotCountProperty[] = "count";

constexpr int kAllButtons = 0x1fff;
constexpr int kResultClosed = MsgBtnCancel;

constexpr QSize kCloseButtonSize(24, 24);
constexpr int kCloseButtonGap = 7;
/** With this many functions Cancel leaves the row and becomes the close button. */
constexpr int kFunctionsForCloseButton = 3;
constexpr QMargins kNoButtonsMargins(4, 30, 4, 30);
constexpr QSize kFunctionButtonSize(116, 34);
/** A text of this many characters goes into the text browser. */
constexpr int kBrowserContentSize = 250;
constexpr int kDragHeight = 32;

constexpr int kDotInterval = 500;
constexpr int kDotStates = 7;
constexpr int kAutoCloseDelay = 2000;

constexpr int kToolListSpacing = 10;
/** Rows of the tool list that are seen at once, and what its border adds to their height. */
constexpr int kVisibleToolRows = 9;
constexpr int kToolListBorder = 2;
constexpr int kNoTool = -1;
/** The elements of a thread's tools in the order of their rows. */
constexpr int kThreadToolOrder[] = {1, 0, 2};

int CountBits(int mask)
{
    return int(std::bitset<32>(static_cast<unsigned int>(mask)).count());
}

int LeftAndRight(const QLayout* layout)
{
    const QMargins margins = layout->contentsMargins();
    return margins.left() + margins.right();
}

QListWidget* CreateToolList(QWidget* parent)
{
    auto* list = new QListWidget(parent);
    list->setStyleSheet(kToolListSheet);
    list->setFocusPolicy(Qt::NoFocus);
    list->setSelectionMode(QAbstractItemView::NoSelection);
    list->setDragEnabled(false);
    list->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    return list;
}

QListWidgetItem* AddToolListRow(QListWidget* list, CVelmarMessageListItem* row)
{
    auto* item = new QListWidgetItem;
    item->setSizeHint(row->size());
    list->addItem(item);
    list->setItemWidget(item, row);
    return item;
}

QListWidgetItem* AddTool(QListWidget* list, QWidget* box, int tool, MachiningType type, ModelType model)
{
    CorvaneToolBitHelper* const tools = CorvaneToolBitHelper::instance();
    auto* row = new CVelmarMessageListItem(box);
    row->SetIsHeader(false);
    row->SetContent(tools->GetToolNameByType(tools->GetIntegerToolTypeByNumber(tool, model)),
                    tools->GetToolDetailByNumber(tool, model),
                    QString::number(tools->GetToolLocationByToolNo(tool, model)), type);
    return AddToolListRow(list, row);
}

const AccessibleFactory::Registration<CVelmarMessageBox, CVelmarMessageBoxAccessible> kAccessible;

} // namespace

QPointer<QWidget> CVelmarMessageBox::m_pTopWidget;

CVelmarMessageBox::CVelmarMessageBox(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                                     const QString& content, bool ext, bool forceBrowser,
                                     const QMap<EnumMsgButtonFunction, QString>& buttonTexts)
    : QWidget(parent, Qt::Dialog | Qt::FramelessWindowHint)
    , m_bExtended(ext)
    , ui(new Ui::CVelmarMessageBox)
{
    ui->setupUi(this);
    hide();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    setWindowModality(Qt::ApplicationModal);
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(title);

    m_pEventLoop = CreateEventLoop();

    ApplyCloseButtonRule(buttonMask);
    if (m_iButtonMask == 0) {
        ui->m_widgetBottom->hide();
        ui->verticalLayout->setContentsMargins(kNoButtonsMargins);
    }

    if (title.isEmpty()) {
        ui->m_labelTitle->hide();
        ui->widget->setStyleSheet(kNoTitleSheet);
    }
    ui->m_labelTitle->setText(title);
    ui->m_labelTitle->setFont(FontCnBold_16);
    ui->checkBox->setFont(FontCn_16);

    if (!content.isEmpty()) {
        AddContent(content, forceBrowser);
    }
    if (icon == MsgIconLoading && m_pLabelContent) {
        AddLoadingDots();
    }
    AddIcon(icon);

    m_mapBtnText = {
        {MsgBtnOk, tr("确定")},
        {MsgBtnCancel, tr("取消")},
        {MsgBtnYes, tr("是")},
        {MsgBtnNo, tr("否")},
        {MsgBtnDeletePackage, tr("删除安装包")},
        {MsgBtnRemindLater, tr("稍后提示")},
        {MsgBtnUpgradeNow, tr("立刻升级")},
        {MsgBtnRestartLater, tr("稍后重启")},
        {MsgBtnRestartNow, tr("立即重启")},
        {MsgBtnCancelPlain, tr("取消")},
        {MsgBtnUploadParams, tr("上传参数")},
        {MsgBtnIgnore, tr("忽略")},
        {MsgBtnRetry, tr("重试")},
    };
    m_mapBtnText.insert(buttonTexts);
    AddFuncButton();

    installEventFilter(this);
    // Hidden before the first show rather than after it: its height fits into the button row either way, and a box that
    // never shows it never pays for its style sheet.
    ui->checkBox->hide();
    KeyboardFocus::ShowOn(ui->checkBox);
    adjustSize();
    show();
    m_bCloseRequested = false;

    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
        auto* shortcut = new QShortcut(QKeySequence(key), this);
        shortcut->setContext(Qt::WindowShortcut);
        connect(shortcut, &QShortcut::activated, this, &CVelmarMessageBox::HandleEnterKey);
    }
}

CVelmarMessageBox::~CVelmarMessageBox()
{
    // Without its box the caller would wait for ever. A code that was recorded before stands: the loop runs no more
    // then.
    if (m_pEventLoop->isRunning()) {
        m_pEventLoop->exit(kResultClosed);
    }
    delete ui;
}

// One small object per box is left behind: a run whose box was deleted is still on the caller's stack, in this loop,
// and so is a timer of the host that ends the loop late. A function of its own, so that the leak has a name.
Q_NEVER_INLINE QEventLoop* CVelmarMessageBox::CreateEventLoop()
{
    return new QEventLoop;
}

void CVelmarMessageBox::ApplyCloseButtonRule(int buttonMask)
{
    m_iButtonMask = buttonMask;
    if (CountBits(buttonMask) < kFunctionsForCloseButton || !(buttonMask & MsgBtnCancel)) {
        return;
    }
    m_iButtonMask &= ~MsgBtnCancel;
    m_pBtnClose = new QPushButton(this);
    m_pBtnClose->setStyleSheet(kCloseButtonSheet);
    m_pBtnClose->setFixedSize(kCloseButtonSize);
    m_pBtnClose->move(width() - m_pBtnClose->width() - kCloseButtonGap, kCloseButtonGap);
    m_pBtnClose->setFocusPolicy(Qt::NoFocus);
    SetTranslatedName(m_pBtnClose, [] { return tr("关闭"); });
    m_pBtnClose->show();
    connect(m_pBtnClose, &QPushButton::clicked, this, &CVelmarMessageBox::pushButton_clicked_slot);
}

void CVelmarMessageBox::AddContent(const QString& content, bool forceBrowser)
{
    m_strContent = content;
    const int contentWidth = width() - LeftAndRight(ui->verticalLayout_4) - LeftAndRight(ui->verticalLayout) -
                             LeftAndRight(ui->horizontalLayout_3) - LeftAndRight(ui->verticalLayout_2) -
                             LeftAndRight(ui->layoutContent) - ui->horizontalLayout_3->spacing() -
                             ui->m_labelIcon->width();
    if (forceBrowser || content.size() >= kBrowserContentSize) {
        AddContentBrowser(contentWidth);
    } else {
        AddContentLabel(contentWidth);
    }
}

void CVelmarMessageBox::AddContentLabel(int width)
{
    m_pLabelContent = new QLabel(ui->widget_2);
    m_pLabelContent->setStyleSheet(kContentLabelSheet);
    m_pLabelContent->setFixedWidth(width);
    m_pLabelContent->setMaximumHeight(QWIDGETSIZE_MAX);
    m_pLabelContent->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_pLabelContent->setWordWrap(true);
    m_pLabelContent->setFont(FontCn_16);
    m_pLabelContent->setContentsMargins(0, 0, 0, 0);
    m_pLabelContent->setIndent(0);
    m_pLabelContent->setText(m_strContent);
    // Its height is fixed below, so no layout needs to ask for it by width: that would measure the text over and over.
    // The policy comes after the polishing, which sets it anew.
    m_pLabelContent->ensurePolished();
    QSizePolicy policy = m_pLabelContent->sizePolicy();
    policy.setHeightForWidth(false);
    m_pLabelContent->setSizePolicy(policy);
    m_pLabelContent->adjustSize();
    m_pLabelContent->setFixedHeight(m_pLabelContent->height());
    ui->layoutContent->addWidget(m_pLabelContent, 1);
}

void CVelmarMessageBox::AddContentBrowser(int width)
{
    m_pBrowserContent = new QTextBrowser(ui->widget_2);
    m_pBrowserContent->setFocusPolicy(Qt::NoFocus);
    m_pBrowserContent->setContextMenuPolicy(Qt::NoContextMenu);
    m_pBrowserContent->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_pBrowserContent->document()->setTextWidth(width);
    m_pBrowserContent->document()->setDocumentMargin(0);
    m_pBrowserContent->setText(m_strContent);
    m_pBrowserContent->setFont(FontCn_16);
    m_pBrowserContent->setStyleSheet(kContentBrowserSheet);
    m_pBrowserContent->setFrameShape(QFrame::NoFrame);
    m_pBrowserContent->setFrameShadow(QFrame::Plain);
    m_pBrowserContent->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pBrowserContent->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_pBrowserContent->setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
    m_pBrowserContent->document()->adjustSize();
    m_pBrowserContent->setFixedHeight(int(m_pBrowserContent->document()->size().height()));
    m_pBrowserContent->setTextInteractionFlags(Qt::NoTextInteraction);
    ui->layoutContent->addWidget(m_pBrowserContent, 0);
    adjustSize();
    // The document chooses a width of its own in adjustSize; the real height is known once the box is laid out.
    QTimer::singleShot(0, m_pBrowserContent, [this, width] { FitBrowserHeight(width); });
}

void CVelmarMessageBox::FitBrowserHeight(int width)
{
    m_pBrowserContent->document()->setTextWidth(width);
    m_pBrowserContent->setFixedHeight(int(m_pBrowserContent->document()->size().height()));
    adjustSize();
}

void CVelmarMessageBox::AddLoadingDots()
{
    m_pLabelContent->setProperty(kDotCountProperty, 0);
    auto* timer = new QTimer(this);
    connect(timer, &QTimer::timeout, m_pLabelContent, [this] {
        const int count = m_pLabelContent->property(kDotCountProperty).toInt();
        m_pLabelContent->setText(m_strContent + QString(count, QLatin1Char('.')));
        m_pLabelContent->setProperty(kDotCountProperty, (count + 1) % kDotStates);
    });
    timer->start(kDotInterval);
}

void CVelmarMessageBox::AddIcon(EnumMsgIcon icon)
{
    switch (icon) {
    case MsgIconPop5:
        ui->m_labelIcon->setStyleSheet(kIconSheet.arg(5));
        break;
    case MsgIconPop2:
        ui->m_labelIcon->setStyleSheet(kIconSheet.arg(2));
        break;
    case MsgIconPop3:
        ui->m_labelIcon->setStyleSheet(kIconSheet.arg(3));
        break;
    case MsgIconPop1:
        ui->m_labelIcon->setStyleSheet(kIconSheet.arg(1));
        break;
    case MsgIconLoading:
        ui->m_labelIcon->setStyleSheet(kLoadingIconSheet);
        MovieCopy::Start(new QMovie(kLoadingAnimation, QByteArray(), this), new QTimer(this), ui->m_labelIcon);
        break;
    }
}

void CVelmarMessageBox::AddFuncButton()
{
    // The stretch comes first, so the buttons lie to the right.
    ui->m_layoutBtn->addStretch(0);
    int remaining = m_iButtonMask & kAllButtons;
    for (auto text = m_mapBtnText.cbegin(); remaining != 0 && text != m_mapBtnText.cend(); ++text) {
        // A caller's key of several bits, or of none, stands for no button.
        if (!(remaining & text.key()) || CountBits(text.key()) != 1) {
            continue;
        }
        remaining &= ~text.key();
        auto* button = new QPushButton(text.value(), ui->m_widgetBtn);
        button->setFont(FontCnMedium_14);
        button->setFixedSize(kFunctionButtonSize);
        button->setProperty(kFunctionProperty, int(text.key()));
        button->setStyleSheet(m_iButtonCount == 0 ? kPrimaryButtonSheet : kOtherButtonSheet);
        connect(button, &QPushButton::clicked, this, &CVelmarMessageBox::SlotAcceptSender);
        ui->m_layoutBtn->addWidget(button);
        m_pLastButton = button;
        ++m_iButtonCount;
    }
}

int CVelmarMessageBox::MsgExec()
{
    if (m_pEventLoop->isRunning()) {
        return kResultClosed;
    }
    const QPointer<CVelmarMessageBox> self(this);
    show();
    const int code = RunLoop();
    if (self) {
        hide();
    }
    return code;
}

void CVelmarMessageBox::MsgExit(int code)
{
    m_pEventLoop->exit(code);
}

// Nothing of the box is touched after the run: it may be gone by then.
int CVelmarMessageBox::RunLoop()
{
    return m_pEventLoop->exec();
}

void CVelmarMessageBox::SetContent(const QString& text)
{
    m_strContent = text;
    ShowContent();
}

void CVelmarMessageBox::ShowContent()
{
    if (m_pLabelContent) {
        m_pLabelContent->setText(m_strContent);
    } else if (m_pBrowserContent) {
        m_pBrowserContent->setText(m_strContent);
    }
}

void CVelmarMessageBox::SetBtnEnable(bool enable)
{
    if (m_iButtonCount == 1) {
        m_pLastButton->setEnabled(enable);
    }
}

void CVelmarMessageBox::HideCloseButton() {}

void CVelmarMessageBox::SetMainWindow(QWidget* window)
{
    m_pTopWidget = window;
}

void CVelmarMessageBox::SlotAcceptSender()
{
    const auto* button = qobject_cast<QPushButton*>(sender());
    const int code = button ? button->property(kFunctionProperty).toInt() : kResultClosed;
    // A slot may delete the box; the loop outlives it.
    QEventLoop* const loop = m_pEventLoop;
    Q_EMIT SignalMessageBoxOperation(code);
    loop->exit(code);
}

void CVelmarMessageBox::pushButton_clicked_slot()
{
    qDebug() << "pushButton_clicked_slot" << 899;
    const QPointer<CVelmarMessageBox> self(this);
    QEventLoop* const loop = m_pEventLoop;
    const QString title = ui->m_labelTitle->text();
    if (title == QStringLiteral("预览") || title == QStringLiteral("Preview")) {
        // A preview takes a while to leave: the box says so until the caller that ran it takes it away.
        SetContent(tr("退出中"));
    } else {
        hide();
    }
    loop->exit(kResultClosed);
    if (self) {
        m_bCloseRequested = true;
    }
}

void CVelmarMessageBox::HandleEnterKey()
{
    auto* button = qobject_cast<QPushButton*>(QApplication::focusWidget());
    if (button && button->isEnabled()) {
        button->click();
    }
}

bool CVelmarMessageBox::eventFilter(QObject* obj, QEvent* event)
{
    if (obj != this) {
        return QObject::eventFilter(obj, event);
    }
    const QPointer<CVelmarMessageBox> self(this);
    if (event->type() == QEvent::Show) {
        CorvaneSignalHelper::instance()->AdjustWindowPosition(this);
        TellEvent(this, QAccessible::Alert);
    } else if (event->type() == QEvent::KeyRelease) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Escape) {
            if (m_pBtnClose || (m_iButtonMask & MsgBtnCancel) || m_iButtonMask == MsgBtnOk) {
                pushButton_clicked_slot();
            }
        } else if ((key == Qt::Key_Return || key == Qt::Key_Enter) && m_iButtonCount == 1) {
            // Whether the button is enabled is not asked: Return answers a box of one button at any time.
            const int code = m_pLastButton->property(kFunctionProperty).toInt();
            QEventLoop* const loop = m_pEventLoop;
            Q_EMIT SignalMessageBoxOperation(code);
            loop->exit(code);
        }
    }
    // Nothing is consumed, but an event must not go on to a box that a slot has deleted.
    return self ? QObject::eventFilter(obj, event) : true;
}

void CVelmarMessageBox::mousePressEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    if (event->button() == Qt::LeftButton && position.x() > 0 && position.x() < ui->m_widgetShow->width() &&
        position.y() > 0 && position.y() < kDragHeight) {
        m_bDragging = true;
        m_ptDragGlobal = event->globalPosition().toPoint();
    }
    QWidget::mousePressEvent(event);
}

void CVelmarMessageBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_bDragging = false;
    }
    QWidget::mouseReleaseEvent(event);
}

void CVelmarMessageBox::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) && m_bDragging) {
        const QPoint position = event->globalPosition().toPoint();
        move(pos() + position - m_ptDragGlobal);
        m_ptDragGlobal = position;
    }
    QWidget::mouseMoveEvent(event);
}

void CVelmarMessageBox::keyPressEvent(QKeyEvent* event)
{
    // The list of tools takes no focus; who has no wheel turns its pages.
    const int key = event->key();
    if (key == Qt::Key_PageDown || key == Qt::Key_PageUp) {
        if (const auto* list = findChild<QListWidget*>()) {
            list->verticalScrollBar()->triggerAction(key == Qt::Key_PageDown ? QAbstractSlider::SliderPageStepAdd
                                                                             : QAbstractSlider::SliderPageStepSub);
            return;
        }
    }
    QWidget::keyPressEvent(event);
}

void CVelmarMessageBox::LogInCheckingMode(const char* entry, const QString& title, const QString& content)
{
    if (CorvaneSignalHelper::instance()->InCheckingEnvironment()) {
        // One after the other: a "%3" in the title is filled by the content.
        CDebugLog::AddLog(QStringLiteral("ShowWindow %1 %2 %3").arg(QLatin1String(entry)).arg(title).arg(content));
    }
}

// The box is visible from its constructor on, so this brings no second Show event, and a place that an entry point has
// given it stays.
int CVelmarMessageBox::RunAndDelete(const QPointer<CVelmarMessageBox>& box)
{
    box->show();
    const int code = box->RunLoop();
    HideAndDelete(box);
    return code;
}

void CVelmarMessageBox::HideAndDelete(const QPointer<CVelmarMessageBox>& box)
{
    if (box) {
        box->hide();
    }
    delete box;
}

int CVelmarMessageBox::ShowWindow(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                                  const QString& content, const QMap<EnumMsgButtonFunction, QString>& buttonTexts)
{
    LogInCheckingMode("ShowWindow", title, content);
    return RunAndDelete(new CVelmarMessageBox(parent, buttonMask, icon, title, content, false, false, buttonTexts));
}

int CVelmarMessageBox::ShowWindowExt(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                                     const QString& content)
{
    LogInCheckingMode("ShowWindowExt", title, content);
    return RunAndDelete(new CVelmarMessageBox(parent, buttonMask, icon, title, content, true, false, {}));
}

int CVelmarMessageBox::ShowWindowAutoClose(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                                           const QString& content)
{
    LogInCheckingMode("ShowWindowAutoClose", title, content);
    const QPointer<CVelmarMessageBox> box =
        new CVelmarMessageBox(parent, buttonMask, icon, title, content, false, false, {});
    // The loop outlives box and call, so a timer that comes late finds it and does no harm. A coarse timer could end
    // the notice a tenth of a second early.
    QTimer::singleShot(kAutoCloseDelay, Qt::PreciseTimer, box->m_pEventLoop, &QEventLoop::quit);
    return RunAndDelete(box);
}

int CVelmarMessageBox::ShowWindowWithoutClose(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                                              const QString& content)
{
    LogInCheckingMode("ShowWindowWithoutClose", title, content);
    return RunAndDelete(new CVelmarMessageBox(parent, buttonMask, icon, title, content, false, false, {}));
}

std::pair<int, bool> CVelmarMessageBox::ShowWindowWithCheckBox(QWidget* parent, int buttonMask, EnumMsgIcon icon,
                                                               const QString& title, const QString& content,
                                                               const QString& checkText, bool checked,
                                                               const QMap<EnumMsgButtonFunction, QString>& buttonTexts)
{
    LogInCheckingMode("ShowWindowWithCheckBox", title, content);
    const QPointer<CVelmarMessageBox> box =
        new CVelmarMessageBox(parent, buttonMask, icon, title, content, false, false, buttonTexts);
    if (parent && !parent->isVisible()) {
        // The origin of the screen stays out: the place is meant in the coordinates of the primary screen.
        const QRect available = parent->screen()->availableGeometry();
        box->resize(box->minimumWidth(), box->minimumHeight());
        box->move(qMax((available.width() - box->width()) / 2, 0), qMax((available.height() - box->height()) / 2, 0));
    }
    QCheckBox* const checkBox = box->ui->checkBox;
    checkBox->show();
    if (!checkText.isEmpty()) {
        checkBox->setText(checkText);
    }
    checkBox->setChecked(checked);
    checkBox->adjustSize();
    box->show();
    const int code = box->RunLoop();
    const bool checkedAtEnd = box && checkBox->isChecked();
    HideAndDelete(box);
    return {code, checkedAtEnd};
}

int CVelmarMessageBox::ShowWindowScreenCenter(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                                              const QString& content)
{
    LogInCheckingMode("ShowWindowScreenCenter", title, content);
    const QPointer<CVelmarMessageBox> box =
        new CVelmarMessageBox(parent, buttonMask, icon, title, content, false, true, {});
    if (m_pTopWidget) {
        const QPoint center = m_pTopWidget->geometry().center();
        box->move(center.x() - box->width() / 2, center.y() - box->height() / 2);
    }
    box->show();
    box->raise();
    return RunAndDelete(box);
}

int CVelmarMessageBox::ShowWindowAndOpenDir(QWidget* parent, const QString& path, const QString& content,
                                            EnumMsgIcon icon, const QString& title)
{
    const QMap<EnumMsgButtonFunction, QString> texts{
        {MsgBtnNo, tr("确定")},
        {MsgBtnYes, QFileInfo(path).isFile() ? tr("打开文件位置") : tr("打开文件夹位置")},
    };
    const int code =
        ShowWindow(parent, MsgBtnYes | MsgBtnNo, icon, title.isEmpty() ? tr("提示") : title, content, texts);
    if (code == MsgBtnYes) {
        const QStringList arguments{QStringLiteral("/select,"), QDir::toNativeSeparators(path)};
        // Posted, so that the file manager comes up after the caller has gone on.
        QTimer::singleShot(0, [path, arguments] {
            if (!QProcess::startDetached(QStringLiteral("explorer.exe"), arguments, QString(), nullptr)) {
                QDesktopServices::openUrl(QUrl::fromLocalFile(QFileInfo(path).dir().absolutePath()));
            }
        });
    }
    return code;
}

void CVelmarMessageBox::ShowDiskSpaceWindow(QWidget* parent, const QString& content)
{
    const QString key = QLatin1String(g_strSettingNoCheckDiskAvailableSpace);
    CorvaneTextHelper* const settings = CorvaneTextHelper::instance();
    if (settings->GetLocalSettingCache(SettingTypeNotice, key, QVariant()).toBool()) {
        return;
    }
    const bool noMore =
        ShowWindowWithCheckBox(parent, MsgBtnYes, MsgIconPop5, tr("磁盘空间不足"), content, QString(), false).second;
    if (noMore) {
        settings->SetLocalSettingCache(SettingTypeNotice, key, QVariant(true), false);
    }
}

// The box shows already. So each layout on the way up has to be told of what the content needs now, and the box, whose
// place is that of a smaller one, must not reach beyond its screen with its buttons.
void CVelmarMessageBox::FitToContent()
{
    for (QWidget* widget = ui->widget_2; widget != this; widget = widget->parentWidget()) {
        widget->layout()->activate();
    }
    adjustSize();
    if (!screen()->availableGeometry().contains(frameGeometry())) {
        CorvaneSignalHelper::instance()->AdjustWindowPosition(this);
    }
}

int CVelmarMessageBox::ShowGCodeConfirmWindow(QWidget* parent, int, EnumMsgIcon, const QString& title,
                                              QList<int> roughTools, QList<int> semiFinishTools, QList<int> finishTools,
                                              QList<std::array<int, 3>> threadTools, int textureTool, ModelType model)
{
    // Built without content, so the list is all that the content's layout gets.
    const QPointer<CVelmarMessageBox> box =
        new CVelmarMessageBox(parent, MsgBtnOk, MsgIconPop5, title, QString(), false, false, {});
    box->AddIcon(MsgIconPop2);

    auto* sentence = new QLabel(tr("请确保已将刀具放置在对应库位。"), box->ui->widget_2);
    sentence->setWordWrap(true);
    sentence->setFont(FontCn_16);
    sentence->setStyleSheet(kConfirmSentenceSheet);

    QListWidget* const list = CreateToolList(box->ui->widget_2);
    auto* header = new CVelmarMessageListItem(box);
    header->SetIsHeader(true);
    AddToolListRow(list, header);
    for (const int tool : roughTools) {
        // Shows nothing while the list takes no selection; the first strategy's rows bear the mark all the same.
        AddTool(list, box, tool, MachiningRough, model)->setSelected(true);
    }
    for (const int tool : semiFinishTools) {
        AddTool(list, box, tool, MachiningSemiFinish, model);
    }
    for (const int tool : finishTools) {
        AddTool(list, box, tool, MachiningFinish, model);
    }
    for (const std::array<int, 3>& tools : threadTools) {
        for (const int element : kThreadToolOrder) {
            if (tools[size_t(element)] != kNoTool) {
                AddTool(list, box, tools[size_t(element)], MachiningThread, model);
            }
        }
    }
    if (textureTool != kNoTool) {
        AddTool(list, box, textureTool, MachiningTexture, model);
    }
    list->setFixedHeight(header->height() * qMin(list->count(), kVisibleToolRows) + kToolListBorder);

    auto* layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(kToolListSpacing);
    layout->addWidget(sentence);
    layout->addWidget(list);
    box->ui->layoutContent->addLayout(layout);
    sentence->show();
    list->show();
    box->FitToContent();
    return RunAndDelete(box);
}

#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <CorvaneBase/CorvaneConstants.h>

#include <QList>
#include <QMap>
#include <QPoint>
#include <QPointer>
#include <QString>
#include <QVariant>
#include <QWidget>

#include <array>
#include <utility>

class QEventLoop;
class QLabel;
class QPushButton;
class QTextBrowser;

namespace Ui {
class CVelmarMessageBox;
}

/** The image of a message box. The values do not follow the names of the image files, and hosts store the values. */
enum EnumMsgIcon : int
{
    MsgIconPop5 = 1,    ///< green badge, ":/icon/img_pop_5.png"
    MsgIconPop2 = 2,    ///< green badge, ":/icon/img_pop_2.png"
    MsgIconPop3 = 3,    ///< amber badge, ":/icon/img_pop_3.png"
    MsgIconPop1 = 4,    ///< green badge, ":/icon/img_pop_1.png"
    MsgIconLoading = 5, ///< the loading animation; a short text is followed by running dots
};

/** The function buttons. A button mask is an OR of these bits, and the bit of the pressed button is the box's result.
 */
enum EnumMsgButtonFunction : int
{
    MsgBtnOk = 1,
    MsgBtnCancel = 2, ///< in a box of three or more functions it turns into the close button at the upper right
    MsgBtnYes = 4,
    MsgBtnNo = 8,
    MsgBtnDeletePackage = 16,
    MsgBtnRemindLater = 32,
    MsgBtnUpgradeNow = 64,
    MsgBtnRestartLater = 128,
    MsgBtnRestartNow = 256,
    MsgBtnCancelPlain = 512, ///< reads like MsgBtnCancel and is a button like any other
    MsgBtnUploadParams = 1024,
    MsgBtnIgnore = 2048,
    MsgBtnRetry = 4096,
};

/**
 * The house message box: a frameless, application-modal panel, 580 pixels wide, with an icon, a title, a text and a row
 * of function buttons. It is no QDialog: its modal run is an event loop of its own, so timers, sockets and signals of
 * the host keep running under it, and boxes may be opened over boxes; they end in the reverse order of opening.
 *
 * Most hosts call one of the static operations, which build a box, run it and delete it. A host that needs the object,
 * to change its text or to end it from outside, builds one itself, owns it and runs it with MsgExec. Deleting a box or
 * its parent while it runs ends the run. For a notice that needs no answer take ToastWidget.
 *
 * Keyboard and accessibility: Tab and the arrow keys go from button to button, whose border shows the focus; Return or
 * Space presses the one that has it, Escape is the close button, and PageUp and PageDown turn the pages of a list of
 * tools. A screen reader is alerted as the box shows and meets a dialog named by its title that tells its content.
 *
 * @code
 * const int answer =
 *     CVelmarMessageBox::ShowWindow(this, MsgBtnYes | MsgBtnNo, MsgIconPop3, tr("删除"), tr("删除该文件？"));
 * if (answer == MsgBtnYes) removeFile();
 * @endcode
 *
 * Result codes: the bit of the pressed button; 2 when the user closed the box by the close button or the Escape key,
 * whether or not there is a Cancel button, and when the box was deleted while it ran; 0 when a timer ended it. Escape
 * closes a box that has a close button or a Cancel button, or whose only function is MsgBtnOk; every other box wants an
 * answer.
 */
class CUSTOMCONTROLS_EXPORT CVelmarMessageBox : public QWidget
{
    Q_OBJECT

public:
    /**
     * Builds a box and leaves it visible; run it with MsgExec.
     *
     * @param parent      owner and the window that the box is centred on; may be null
     * @param buttonMask  EnumMsgButtonFunction bits; other bits make no button. With 0 the box has no button row, and
     * only MsgExit or its deletion ends it
     * @param icon        a value outside EnumMsgIcon leaves the icon's place empty
     * @param title       an empty title hides the title line
     * @param content     plain or rich text; from 250 characters on it is shown in a text browser as high as the text
     * @param ext         marks an extended box; it has no visible effect
     * @param forceBrowser shows a short text in the text browser too
     * @param buttonTexts texts that replace the default ones; keys that are not in the mask have no effect
     */
    CVelmarMessageBox(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title, const QString& content,
                      bool ext, bool forceBrowser, const QMap<EnumMsgButtonFunction, QString>& buttonTexts);
    /** Ends the run, if there is one, with result 2. */
    ~CVelmarMessageBox() override;

    /**
     * Shows the box, runs it until it is answered, hides it and returns the result code. The box is not deleted. A box
     * that is already running is left alone, and the call returns 2.
     */
    int MsgExec();

    /** Makes the running box return @p code; no signal follows. A box that is not running ignores the call. */
    void MsgExit(int code);

    /**
     * Replaces the text. The height stays as it was computed for the first one, and a box that was built with an empty
     * text only stores it. Running dots follow the new text at their next step.
     */
    void SetContent(const QString& text);

    /** Enables or disables the button of a box that has exactly one; any other box ignores the call. */
    void SetBtnEnable(bool enable);

    /** Does nothing: the close button stays. Kept for hosts that call it. */
    void HideCloseButton();

    /** Names the host's main window, on which ShowWindowScreenCenter centres its boxes; null for none. */
    static void SetMainWindow(QWidget* window);

    /** Asks a question and returns the result code. See the constructor for the arguments. */
    static int ShowWindow(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                          const QString& content, const QMap<EnumMsgButtonFunction, QString>& buttonTexts = {});

    /** As ShowWindow with the default texts; the box is marked as extended, which has no visible effect. */
    static int ShowWindowExt(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                             const QString& content);

    /** As ShowWindow with the default texts, but the box goes by itself after 2000 ms, with result 0. */
    static int ShowWindowAutoClose(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                                   const QString& content);

    /** As ShowWindow with the default texts. Whether there is a close button is the mask's affair here too. */
    static int ShowWindowWithoutClose(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                                      const QString& content);

    /**
     * As ShowWindow, with a check box beside the buttons. A hidden parent gives its screen as the place of the box.
     *
     * @param parent      as for the constructor, like the following four
     * @param buttonMask  EnumMsgButtonFunction bits
     * @param icon        an EnumMsgIcon
     * @param title       may be empty
     * @param content     plain or rich text
     * @param checkText   an empty text keeps "不再提醒"
     * @param checked     the state at first
     * @param buttonTexts texts that replace the default ones
     * @return the result code, and the state of the check box at the end, however the box was closed; false when the
     * box was deleted while it ran
     */
    static std::pair<int, bool> ShowWindowWithCheckBox(QWidget* parent, int buttonMask, EnumMsgIcon icon,
                                                       const QString& title, const QString& content,
                                                       const QString& checkText, bool checked,
                                                       const QMap<EnumMsgButtonFunction, QString>& buttonTexts = {});

    /**
     * As ShowWindow with the default texts, centred on the window that SetMainWindow named and shown in the text
     * browser. Without such a window it stands where every other box does.
     */
    static int ShowWindowScreenCenter(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                                      const QString& content);

    /**
     * Tells about a file or folder and offers to show it in the file manager, which is started after the call has
     * returned. A failed start is not reported.
     *
     * @param parent  owner and the window that the box is centred on; may be null
     * @param path    of the file or folder; it need not exist
     * @param content plain or rich text
     * @param icon    an EnumMsgIcon
     * @param title   an empty title becomes "提示"
     * @return 4 when the user asked for the file manager, else 8
     */
    static int ShowWindowAndOpenDir(QWidget* parent, const QString& path, const QString& content, EnumMsgIcon icon,
                                    const QString& title);

    /** Warns of a disk that is filling up, unless the user has ever ticked "不再提醒" in this box. */
    static void ShowDiskSpaceWindow(QWidget* parent, const QString& content);

    /**
     * Shows, before a job starts, which tools its G-code uses and where they must stand in the magazine: one row per
     * use, with the strategy's tag, and the tool's name, measures and pocket as CorvaneToolBitHelper knows them. At
     * most nine rows are seen at once, the titles among them; the others are scrolled to.
     *
     * @param parent      owner and the window that the box is centred on; may be null
     * @param buttonMask  has no effect: the box has the one button MsgBtnOk
     * @param icon        has no effect: the box has the image of MsgIconPop2
     * @param title       an empty title hides the title line
     * @param roughTools, semiFinishTools, finishTools numbers of the tools of each strategy, in the order of the rows,
     *                    which stand in the order of the strategies; a number may come again. A number that the model
     *                    does not have makes a row too, at the pocket -1
     * @param threadTools up to three tools for each thread; their rows stand in the order of the elements 1, 0, 2. An
     *                    element of -1 makes no row
     * @param textureTool -1 for none
     * @param model       whose magazine is meant
     * @return MsgBtnOk, or 2 when the user pressed Escape or the box was deleted while it ran
     */
    static int ShowGCodeConfirmWindow(QWidget* parent, int buttonMask, EnumMsgIcon icon, const QString& title,
                                      QList<int> roughTools, QList<int> semiFinishTools, QList<int> finishTools,
                                      QList<std::array<int, 3>> threadTools, int textureTool, ModelType model);

Q_SIGNALS:
    /** The user pressed a function button, or Return or Enter in a box of one button. Sent before the run ends. */
    void SignalMessageBoxOperation(int iButtonType);

protected:
    bool eventFilter(QObject* obj, QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

protected Q_SLOTS:
    /** What a function button's click does: the signal, then the end of the run. */
    void SlotAcceptSender();
    /** What the close button's click does: the end of the run with result 2. */
    void pushButton_clicked_slot();

private:
    friend class CVelmarMessageBoxAccessible;

    static QEventLoop* CreateEventLoop();
    static void LogInCheckingMode(const char* entry, const QString& title, const QString& content);
    static int RunAndDelete(const QPointer<CVelmarMessageBox>& box);
    static void HideAndDelete(const QPointer<CVelmarMessageBox>& box);

    void ApplyCloseButtonRule(int buttonMask);
    void AddContent(const QString& content, bool forceBrowser);
    void AddContentLabel(int width);
    void AddContentBrowser(int width);
    void FitBrowserHeight(int width);
    void AddLoadingDots();
    void AddIcon(EnumMsgIcon icon);
    void AddFuncButton();
    void HandleEnterKey();
    void ShowContent();
    int RunLoop();
    void FitToContent();

    static QPointer<QWidget> m_pTopWidget;

    bool m_bCloseRequested = false;
    QEventLoop* m_pEventLoop = nullptr;
    bool m_bDragging = false;
    QPoint m_ptDragGlobal;
    int m_iButtonCount = 0;
    QPushButton* m_pLastButton = nullptr;
    bool m_bExtended;
    QMap<EnumMsgButtonFunction, QString> m_mapBtnText;
    QMap<int, QVariant> m_mapReserved;
    QLabel* m_pLabelContent = nullptr;
    QTextBrowser* m_pBrowserContent = nullptr;
    Ui::CVelmarMessageBox* ui;
    int m_iButtonMask = 0;
    QString m_strContent;
    QPushButton* m_pBtnClose = nullptr;
};

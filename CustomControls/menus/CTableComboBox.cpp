#include <CustomControls/menus/CTableComboBox.h>

#include <CustomControls/accessibility/KeyboardFocus.h>
#include <CustomControls/menus/CDelegateComboBox.h>

#include <CorvaneBase/CorvaneFonts.h>

namespace {

const QString kSheet = QStringLiteral(
    "QComboBox{background:#FFFFFF;border:1px solid #cccccc;border-radius:2px;padding-left:6px;}"
    "QComboBox::hover{border:1px solid #17a061;}"
    "QComboBox::drop-down{width:18px;border-top-right-radius:2px;border-bottom-right-radius:2px;background:#FFFFFF;"
    "border:none; image:url(:/icon/ico_current_arrow_down_nor.png);}"
    "QComboBox::drop-down:hover{image:url(:/icon/ico_current_arrow_down_nor.png);}"
    "QComboBox::disabled{color:#8c979c;}"
    "QAbstractItemView{border:1px solid #cccccc;background:#FFFFFF;}"
    "QAbstractItemView::item{padding-left:6px;border:none;}");

} // namespace

CTableComboBox::CTableComboBox(QWidget* parent)
    : QComboBox(parent)
{
    setStyleSheet(kSheet);
    setFont(FontCnMedium_13);
    KeyboardFocus::ShowOn(this);
    auto* delegate = new CDelegateComboBox;
    setItemDelegate(delegate);
    // It has no parent, so that the view's end is not its own; unless another took its place, it goes with the box.
    connect(this, &QObject::destroyed, delegate, [delegate] { delete delegate; });
}

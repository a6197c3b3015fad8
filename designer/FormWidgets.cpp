#include "FormWidget.h"

#include <CustomControls/CProgressWidget/CProgressBar.h>
#include <CustomControls/buttons/CHintButton.h>
#include <CustomControls/buttons/CIconButton.h>
#include <CustomControls/buttons/CSelectButton.h>
#include <CustomControls/buttons/CUnitButton.h>
#include <CustomControls/buttons/CVelmarButton.h>
#include <CustomControls/feedback/CVelmarAnimation.h>
#include <CustomControls/feedback/CWatermarkWidget.h>
#include <CustomControls/fields/CSelectBox.h>
#include <CustomControls/fields/CTextEdit.h>
#include <CustomControls/menus/CComboBox.h>
#include <CustomControls/menus/CTableComboBox.h>
#include <CustomControls/menus/CXCombobox.h>
#include <CustomControls/messagebox/CMsgBoxBackground.h>
#include <CustomControls/toolbar/CTabBar.h>
#include <CustomControls/toolbar/CTabToolWidget.h>
#include <CustomControls/toolbar/CTabWidget.h>
#include <CustomControls/toolbar/CToolButton.h>
#include <CustomControls/toolbar/CToolButtonVertical.h>

namespace {

constexpr bool kContainer = true;
constexpr bool kNoContainer = false;

// A text whose operation is setText, and one whose operation uic could not guess.
constexpr auto kText = R"(<property name="text"><string>Text</string></property>)";
constexpr auto kTextByName = R"(<property name="text" stdset="0"><string>Text</string></property>)";
constexpr auto kPages =
    R"(<widget class="QWidget" name="tab"><attribute name="title"><string>Tab 1</string></attribute></widget>)"
    R"(<widget class="QWidget" name="tab_2"><attribute name="title"><string>Tab 2</string></attribute></widget>)";

// The form's widget lies on the form, whatever its constructor does with a parent.
template <class T>
QWidget* Create(QWidget* parent)
{
    auto* widget = new T(parent);
    if (widget->parentWidget() != parent) {
        widget->setParent(parent);
    }
    return widget;
}

template <class T>
const char* QtClassOf()
{
    const QMetaObject* meta = T::staticMetaObject.superClass();
    while (meta->className()[0] != 'Q') {
        meta = meta->superClass();
    }
    return meta->className();
}

template <class T>
FormWidget Row(const char* header, QSize size, bool isContainer, const char* toolTip, const char* whatsThis,
               const char* content = "", const char* literals = "")
{
    return {T::staticMetaObject.className(),
            QtClassOf<T>(),
            header,
            size,
            isContainer,
            toolTip,
            whatsThis,
            content,
            literals,
            &Create<T>};
}

} // namespace

const QList<FormWidget>& FormWidgets()
{
    static const QList<FormWidget> widgets = {
        Row<CVelmarButton>("CustomControls/buttons/CVelmarButton.h", {120, 32}, kNoContainer, "The house push button",
                           "Connect to SignalClicked(); clicked() never fires. Colours are given by the program: "
                           "SetBackgroundSolid() and SetTextColor().",
                           kTextByName),
        Row<CIconButton>("CustomControls/buttons/CIconButton.h", {200, 40}, kNoContainer,
                         "A wide push button with an icon and a caption side by side",
                         "The icon is the path of a picture. A style sheet gives background and border.", kTextByName,
                         "icon"),
        Row<CSelectButton>("CustomControls/buttons/CSelectButton.h", {96, 88}, kNoContainer,
                           "A checkable tile with a picture over a caption",
                           "The icon is the path of a picture, which is drawn in its own size. Put the tiles of one "
                           "choice into a button group.",
                           kText, "icon"),
        Row<CUnitButton>("CustomControls/buttons/CUnitButton.h", {48, 26}, kNoContainer,
                         "A small tile with a value and its unit: one of a row of presets", "Always 48 by 26 pixels.",
                         R"(<property name="text"><string notr="true">45</string></property>)"
                         R"(<property name="unit"><string notr="true">°</string></property>)"),
        Row<CHintButton>("CustomControls/buttons/CHintButton.h", {96, 28}, kNoContainer,
                         "A push button that shows a note on hover and pins it on click",
                         "The note is hintText; a note with widgets of its own is given by the program: SetToolTip().",
                         kText),
        Row<CComboBox>("CustomControls/menus/CComboBox.h", {282, 28}, kNoContainer,
                       "The dark combo box, with a list in the product's own look",
                       "Its entries stand in the property items: those of \"Edit Items...\" do not reach the list. "
                       "boxSize fixes box and list."),
        Row<CTableComboBox>("CustomControls/menus/CTableComboBox.h", {140, 24}, kNoContainer,
                            "A light, plain combo box, made for the cells of a table",
                            "Entries and signals are those of QComboBox."),
        Row<CXCombobox>("CustomControls/menus/CXCombobox.h", {140, 24}, kNoContainer,
                        "A combo box that tells when it loses the focus",
                        "Put it into a layout: its constructor takes no parent, so that without one it stays off the "
                        "form."),
        Row<CTextEdit>("CustomControls/fields/CTextEdit.h", {272, 30}, kNoContainer,
                       "A labelled numeric field with a unit",
                       "Set the range before the value: a value out of range shows the default value.",
                       R"(<property name="name" stdset="0"><string>Name</string></property>)"),
        Row<CSelectBox>("CustomControls/fields/CSelectBox.h", {272, 30}, kNoContainer,
                        "A row with a caption, a mark that explains it and a sliding switch",
                        "The pictures of mark and switch come from the host's resources, :/icon/gcode/.", kTextByName),
        Row<CToolButton>("CustomControls/toolbar/CToolButton.h", {56, 68}, kNoContainer,
                         "The large button of the ribbon: an icon over a caption",
                         "Whole rows of them are made by the program: CToolBarItem.", kText),
        Row<CToolButtonVertical>("CustomControls/toolbar/CToolButtonVertical.h", {96, 24}, kNoContainer,
                                 "The small button of the ribbon: an icon beside a caption",
                                 "groupWidth is the width of the widest caption of its stack.", kText),
        Row<CTabBar>("CustomControls/toolbar/CTabBar.h", {240, 30}, kNoContainer,
                     "The dark tabs of a CTabWidget, without pages", "Tabs are added by the program: addTab()."),
        Row<CTabWidget>("CustomControls/toolbar/CTabWidget.h", {320, 200}, kContainer,
                        "Dark tabs over light pages, for a main window", "Its tabs share the whole width.", kPages),
        Row<CTabToolWidget>("CustomControls/toolbar/CTabToolWidget.h", {480, 120}, kContainer,
                            "The pages of a ribbon, with the ribbon's picture at their right edge",
                            "The tool blocks of a page are made by the program: CToolBarItem.", kPages),
        Row<CProgressBar>("CustomControls/CProgressWidget/CProgressBar.h", {200, 20}, kNoContainer,
                          "A progress bar with a percentage in two colours",
                          "percentageVisible is its own text; textVisible, that of the style, is off on a new bar.",
                          R"(<property name="textVisible"><bool>false</bool></property>)"
                          R"(<property name="value"><number>40</number></property>)"),
        Row<CVelmarAnimation>("CustomControls/feedback/CVelmarAnimation.h", {48, 48}, kNoContainer,
                              "A label that flips through a list of images",
                              "Each image is a value of a style sheet: url(:/wait/1.png).", "", "images"),
        Row<CWatermarkWidget>("CustomControls/feedback/CWatermarkWidget.h", {320, 200}, kContainer,
                              "Lays the mark of an internal build over what it holds",
                              "The mark appears with ShowWatermark(), and follows with AdjustWatermark()."),
        Row<CMsgBoxBackground>("CustomControls/messagebox/CMsgBoxBackground.h", {320, 200}, kContainer,
                               "The panel of a box, painted by its style sheet alone",
                               "Give it a style sheet for its own object name."),
    };
    return widgets;
}

#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>

class CProgressWidget;
class CSelectMachineBox;
class CVelmarMessageBox;
class QLabel;
class QPoint;
class QPushButton;
class QWidget;

/**
 * What the tour sees of the screen. Only what is visible is found, and it is found the way any host could: by class, by
 * object name and through public operations.
 */
namespace TourLook {

/** The visible widget of that object name, in the newest window first; null when there is none. */
QWidget* Find(const QString& name);

/** The text of the visible label, button or field of that name; null when there is none. */
QString Text(const QString& name);

/** The message box that has the input now. */
CVelmarMessageBox* Box();
QString BoxTitle();
QString BoxText();
QPushButton* BoxButton(int code);
QPushButton* BoxCloseButton();
QList<int> BoxCodes();

CSelectMachineBox* Panel();
CProgressWidget* Progress();

/** What the visible widgets of a window say: captions, entries, tool tips and names for a screen reader. */
QStringList Texts(QWidget* window);
/** The first of them with a Chinese character, but for the button that offers Chinese; null when there is none. */
QString ChineseText(QWidget* window);

/** The colour that the screen shows at a place of the widget. */
QColor ScreenColor(QWidget* widget, const QPoint& position);

/** Empty when what is seen is as it should be, else a remark that ends in "; ", so that remarks can be added up. */
QString Equal(const QString& what, const QString& seen, const QString& expected);
QString BeginsWith(const QString& what, const QString& seen, const QString& expected);
QString True(bool seen, const QString& otherwise);

} // namespace TourLook

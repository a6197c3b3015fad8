#pragma once

#include <QList>
#include <QSize>
#include <QString>

class QWidget;

/** What Designer has to know of one widget that a form can hold. */
struct FormWidget
{
    const char* className;
    const char* qtClass;   ///< the nearest base class that Designer and uic know by themselves
    const char* header;    ///< as a host includes it
    QSize size;            ///< as the widget is dropped on a form, in logical pixels
    bool isContainer;      ///< other widgets can be dropped into it
    const char* toolTip;   ///< one line
    const char* whatsThis; ///< what a form's author has to know beyond that
    const char* content;   ///< first properties and pages, as they stand in a form
    const char* literals;  ///< properties of text that are no words and stay untranslated, separated by blanks
    QWidget* (*create)(QWidget* parent);
};

/** Every exported widget that a form can hold; the README beside this file has the others, with the reason of each. */
const QList<FormWidget>& FormWidgets();

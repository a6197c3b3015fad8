#pragma once

#include <QString>

class QWidget;

/**
 * Names a control that shows no words for assistive technology, now and again whenever the application changes its
 * language. A name that the host has given it since stays. @p name asks tr() anew at each call.
 */
void SetTranslatedName(QWidget* control, QString (*name)());

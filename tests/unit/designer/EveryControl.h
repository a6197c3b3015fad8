#pragma once

class QWidget;

/** Has the test fail on any warning but the one that the offscreen platform gives for every window. */
void FailOnWarning();

/** Rows of a QTest table: what EveryControl.ui says of each control, as (object, class, property, value). */
void AddRowsOfEveryControl();

/** Looks up the object of the current row and compares class and property. Fails the test where they differ. */
void CheckCurrentRow(QWidget* form);

/** Fails the test where the form's connections do not work. */
void CheckConnections(QWidget* form);

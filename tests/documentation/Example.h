#pragma once

#include <QApplication>
#include <QMainWindow>
#include <QTimer>
#include <QVBoxLayout>
#include <QWidget>
#include <QtTest>

/**
 * An example of docs/controls: what stands between the lines [example] and [/example] is what the page shows, word for
 * word, and what comes after them proves that it does what the page says.
 *
 * A source in docs/examples has the name of its page and holds one:
 *
 * @code
 * EXAMPLE(CProgressBar)
 * {
 *     // [example]
 *     auto* bar = new CProgressBar(panel);
 *     bar->setValue(40);
 *     layout->addWidget(bar);
 *     // [/example]
 *     QCOMPARE(bar->value(), 40);
 * }
 * @endcode
 */
struct Example
{
    /** The host's main window, its central widget, and that widget's layout. */
    using Body = void (*)(QMainWindow* window, QWidget* panel, QVBoxLayout* layout);

    /** Adds itself to the list of examples. */
    Example(const char* name, Body body);

    const char* name;
    Body body;
};

#define EXAMPLE(Name)                                                                                                  \
    static void Name##Example(QMainWindow* window, QWidget* panel, QVBoxLayout* layout);                               \
    static const Example Name##Entry(#Name, Name##Example);                                                            \
    static void Name##Example([[maybe_unused]] QMainWindow* window, [[maybe_unused]] QWidget* panel,                   \
                              [[maybe_unused]] QVBoxLayout* layout)

#pragma once

#include <QWidget>

class CProgressBar;

namespace Ui {
class MyProgressBar;
}

/**
 * The striped bar of the progress dialog: a widget around a CProgressBar whose style sheet it rewrites ten times a
 * second, so that a diagonal pattern seems to move along the filled part. Used within the library only; owned by its
 * parent.
 *
 * @code
 * auto* stripes = new MyProgressBar(this);
 * stripes->progressBar()->setValue(40);
 * stripes->updateValue(); // at once, without waiting for the next tick
 * @endcode
 */
class MyProgressBar : public QWidget
{
    Q_OBJECT

public:
    /** A dark bar at 0 of 100 whose stripes will move as soon as it rises; @p parent owns it and may be null. */
    explicit MyProgressBar(QWidget* parent = nullptr);
    ~MyProgressBar() override;
    Q_DISABLE_COPY_MOVE(MyProgressBar)

    /** The inner bar, which holds the value from 0 to 100; never null. */
    CProgressBar* progressBar() const;

public Q_SLOTS:
    /**
     * Moves the stripes to where they belong by now. A bar below 1 keeps the sheet that it has, so it stays dark until
     * it first rises; a bar without width or height has nothing to show and keeps its sheet too.
     */
    void updateValue();

private:
    Ui::MyProgressBar* ui;
};

#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QString>
#include <QWidget>

class QLabel;

namespace Ui {
class CTextEdit;
}

/**
 * A labelled numeric field of a parameter panel: a name on the left, a white box with a number and its unit on the
 * right. The user types the number, or steps it by Up and Down. A number from the program that the range doesn't hold
 * shows the field's default value instead: it is replaced, not moved to the nearer end. Owned by its parent.
 *
 * The range is 0 to 999999 with two decimals until SetRange() and SetDecimals().
 *
 * Keyboard and accessibility: Tab reaches the number, Up and Down step it. A screen reader meets a spin box named by
 * the field's name, with the unit as its description.
 *
 * @code
 * auto* angle = new CTextEdit(panel, tr("旋转角度："), QStringLiteral("0"), QStringLiteral("°"), 110);
 * angle->SetRange(0.0, 360.0);
 * angle->SetValue(-30.0, 2, true); // shows 330
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CTextEdit : public QWidget
{
    Q_OBJECT
    /** The text of GetNameLabel(). */
    Q_PROPERTY(QString name READ Name WRITE SetName)
    Q_PROPERTY(QString unit READ Unit WRITE SetUnit)
    /** The width of the white box, see SetMainWidgetWidth(); 0 while it grows with the field. */
    Q_PROPERTY(int mainWidth READ MainWidth WRITE SetMainWidgetWidth)
    Q_PROPERTY(int decimals READ Decimals WRITE SetDecimals)
    /** The two ends of SetRange(), one at a time. A minimum above the maximum takes that along. */
    Q_PROPERTY(double minimum READ Minimum WRITE SetMinimum)
    Q_PROPERTY(double maximum READ Maximum WRITE SetMaximum)
    Q_PROPERTY(double defaultValue READ DefaultValue WRITE SetDefaultValue)
    Q_PROPERTY(double value READ GetEditData WRITE SetValue USER true)

public:
    /** The field of a form: 0, without name and unit; @p parent owns it and may be null. */
    explicit CTextEdit(QWidget* parent = nullptr);

    /**
     * @param parent       the owner; may be null
     * @param name         the name on the left
     * @param defaultValue a number in the C locale, which is also the first value shown; a text that is no number
     * counts as 0, a number out of range as the range's minimum
     * @param unit         stands behind the number; may be empty
     * @param mainWidth    the width of the white box in logical pixels, cut to a whole number; 0 and less let it grow
     */
    CTextEdit(QWidget* parent, QString name, QString defaultValue, QString unit, double mainWidth);
    ~CTextEdit() override;

    /** Announces SignalEditDataChanged() for the keys Up and Down in the number; consumes nothing. */
    bool eventFilter(QObject* watched, QEvent* event) override;

    /**
     * Fixes the width of the white box.
     *
     * @param width in logical pixels; below 1 nothing changes
     */
    void SetMainWidgetWidth(int width);

    /** The number as the field holds it: rounded to its decimals. */
    double GetEditData();

    /** What is shown in place of a number out of range. */
    double DefaultValue() const;

    /** The default value; one that the range doesn't hold becomes the range's minimum. What is shown stays. */
    void SetDefaultValue(double value);

    /** Shows @p value; one that the range doesn't hold shows the default value. No signal follows. */
    void SetValue(double value);

    /**
     * The same, with another number of decimals.
     *
     * @param value    the number to show
     * @param decimals see SetDecimals(); it stays
     */
    void SetValue(double value, int decimals);

    /**
     * The same, for angles. A @p value closer to zero than 0.00001 shows zero, wrapped or not.
     *
     * @param value    the angle to show
     * @param decimals see SetDecimals(); it stays
     * @param wrap     true first brings @p value into the range: v = fmod(value, span), and one span more below the
     * minimum or one less above the maximum. With a span of zero the number stays as it is
     */
    void SetValue(double value, int decimals, bool wrap);

    /** The decimals shown and kept: 0 or more; fewer count as 0. */
    void SetDecimals(int decimals);

    /**
     * The range, both ends included. A default value outside becomes @p minimum; the number shown moves to the nearer
     * end. A @p maximum below @p minimum counts as @p minimum; an end that is no number changes nothing.
     */
    void SetRange(double minimum, double maximum);

    /** Fixes the height of the whole field, in logical pixels. */
    void SetFixedHeight(int height);

    /** The label of the name, for the host to restyle; the field keeps owning it. */
    QLabel* GetNameLabel();

Q_SIGNALS:
    /** Reserved for derived classes: the field itself never emits it. */
    void SignalButtonToggled(bool checked);
    /**
     * The user ended typing by Return or by leaving the field, or stepped the number. A step by a key is told after it
     * was taken, and may be told several times. A value from the program is never told.
     */
    void SignalEditDataChanged();

private:
    QString Name() const;
    void SetName(const QString& name);
    QString Unit() const;
    void SetUnit(const QString& unit);
    int MainWidth() const;
    int Decimals() const;
    double Minimum() const;
    void SetMinimum(double minimum);
    double Maximum() const;
    void SetMaximum(double maximum);
    void NameNumber();

    bool IsInRange(double value) const;

    Ui::CTextEdit* ui;
    double m_dDefaultValue = 0.0;
    [[maybe_unused]] quintptr m_uReserved = 0;
};

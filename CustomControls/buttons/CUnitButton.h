#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QPushButton>
#include <QString>

/**
 * A small tile, 48 by 26 pixels, with a value and, smaller, its unit: one of a row of presets. It paints everything
 * itself, so a style sheet doesn't reach it. The text of QPushButton stays empty.
 *
 * Made with value and unit it is born without a parent, whatever its constructor is given: add it to a layout, which
 * parents it.
 *
 * Keyboard and accessibility: a push button named by value and unit; Space clicks it, and a ring shows that Tab has led
 * here.
 *
 * @code
 * auto* preset = new CUnitButton(QStringLiteral("45"), QStringLiteral("°"), nullptr);
 * row->addWidget(preset);
 * connect(preset, &QPushButton::clicked, this, [this] { m_pAngle->SetValue(45.0); });
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CUnitButton : public QPushButton
{
    Q_OBJECT
    /** Value and unit; the value stands in the place of the text of QAbstractButton. */
    Q_PROPERTY(QString text MEMBER m_strText WRITE setText)
    Q_PROPERTY(QString unit MEMBER m_strUnit WRITE setUnit)

public:
    /** The tile of a form, without value and unit; @p parent owns it and may be null. */
    explicit CUnitButton(QWidget* parent = nullptr);

    /**
     * @param text   the value; value and unit together wider than 48 pixels are cut at both ends
     * @param unit   follows the value without a gap; may be empty
     * @param parent ignored
     */
    CUnitButton(const QString& text, const QString& unit, QWidget* parent);

    /** The value; repaints. */
    void setText(const QString& text);

    /** The unit; repaints. */
    void setUnit(const QString& unit);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    friend class CUnitButtonAccessible;

    QString m_strText;
    QString m_strUnit;
    // The widths of both, measured when they change.
    int m_iTextWidth = 0;
    int m_iUnitWidth = 0;
};

#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QPixmap>
#include <QPushButton>
#include <QString>

/**
 * A wide push button with an icon and a caption side by side, a little left of its centre. It paints both itself over
 * what QPushButton paints, so a style sheet gives background and border. Owned by its parent.
 *
 * Set icon and caption before the button shows: neither setter repaints. The text and the icon of QPushButton stay
 * empty.
 *
 * Keyboard and accessibility: a push button named by its text; Space clicks it, and a ring shows that Tab has led here.
 *
 * @code
 * auto* button = new CIconButton(panel);
 * button->SetIcon(QStringLiteral(":/icon/start.png"));
 * button->SetText(tr("生成刀路"));
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CIconButton : public QPushButton
{
    Q_OBJECT
    /** Icon and caption, in the place of those of QAbstractButton. */
    Q_PROPERTY(QString icon MEMBER m_strIcon WRITE SetIcon)
    Q_PROPERTY(QString text MEMBER m_strText WRITE SetText)

public:
    /** Makes a button without icon and caption; @p parent owns it and may be null. */
    explicit CIconButton(QWidget* parent = nullptr);

    /**
     * The icon, drawn 24 by 24 pixels; it shows with the next repaint.
     *
     * @param icon a file or resource. An empty one centres the caption alone; one that cannot be read keeps its place
     * empty
     */
    void SetIcon(const QString& icon);

    /** The caption, in the button's font and text colour; it shows with the next repaint. */
    void SetText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    friend class CIconButtonAccessible;

    QString m_strIcon;
    QString m_strText;
    QPixmap m_pixIcon; // what m_strIcon names, read once
};

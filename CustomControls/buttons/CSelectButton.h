#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QIcon>
#include <QPixmap>
#include <QPushButton>
#include <QSize>
#include <QString>

/**
 * A checkable tile with a picture over a caption, such as one material of many. Checked it has a white ground, a green
 * frame and a mark in its top right corner. Owned by its parent.
 *
 * The button has no size of its own: give it one that holds the picture and 18 pixels below it. It paints everything
 * itself, so a style sheet doesn't reach it. The text and the icon of QPushButton stay empty.
 *
 * Keyboard and accessibility: a check box named by its caption, or a radio button in a group that is exclusive; Space
 * toggles it, and a ring shows that Tab has led here.
 *
 * @code
 * auto* tile = new CSelectButton(panel);
 * tile->setIcon(QStringLiteral(":/icon/selectbox/material/img_material_jade.png"));
 * tile->setText(tr("玉石"));
 * tile->setFixedSize(96, 88);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CSelectButton : public QPushButton
{
    Q_OBJECT
    /** Picture and caption, in the place of those of QAbstractButton. */
    Q_PROPERTY(QString icon MEMBER m_strIcon WRITE setIcon)
    Q_PROPERTY(QString text MEMBER m_strText WRITE setText)

public:
    /** Makes an unchecked tile without picture and caption; @p parent owns it and may be null. */
    explicit CSelectButton(QWidget* parent = nullptr);

    /**
     * The picture, drawn in its own size; it shows with the next repaint.
     *
     * @param path a file or resource. One that cannot be read, or an empty one, shows no picture and takes no room
     */
    void setIcon(const QString& path);

    /**
     * The caption; it shows with the next repaint. Its line is 14 pixels high and as wide as the tile: what reaches
     * beyond, such as the tails of Latin letters, is cut.
     */
    void setText(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    friend class CSelectButtonAccessible;

    QIcon m_icon;
    QSize m_sizeIcon;
    QString m_strText;
    QString m_strIcon; // where m_icon was read from
    QPixmap m_pixMark; // the mark of a checked tile, read once
    QPixmap m_pixIcon; // m_icon at m_sizeIcon
};

#pragma once

#include <CustomControls/CustomControlsGlobal.h>

#include <QLabel>
#include <QList>
#include <QString>
#include <QStringList>

class QTimer;

/**
 * A label that flips through a list of images on a timer, by way of its style sheet. Give it its images first and the
 * interval then: the second call starts at the first image. Owned by its parent.
 *
 * @code
 * auto* animation = new CVelmarAnimation(this);
 * animation->InsertImage({"url(:/wait/1.png)", "url(:/wait/2.png)"});
 * animation->SetShowIntervalTime(80);
 * @endcode
 */
class CUSTOMCONTROLS_EXPORT CVelmarAnimation : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(QStringList images MEMBER m_strlistImage WRITE InsertImage)
    /** In milliseconds; setting it starts with the first image. */
    Q_PROPERTY(int interval READ Interval WRITE SetShowIntervalTime)

public:
    /** Runs at 40 ms from the start, and shows nothing without images. */
    explicit CVelmarAnimation(QWidget* parent);
    ~CVelmarAnimation() override;

    /**
     * Replaces the whole list and shows nothing yet.
     *
     * @param images each a complete value of the style sheet's "image", such as "url(:/wait/1.png)"; one whose file is
     * missing shows nothing for its time. An empty list leaves the last image in place
     */
    void InsertImage(const QList<QString>& images);

    /**
     * Shows the first image and flips on every @p ms milliseconds from now.
     *
     * @param ms 0 flips as often as the event loop turns; a negative one counts as 40
     */
    void SetShowIntervalTime(int ms);

private Q_SLOTS:
    void SlotShowTimeout();

private:
    int Interval() const;
    void UpdateShowImage();

    QTimer* m_pTimer;
    QList<QString> m_strlistImage;
    int m_nIndex = 0;
    int m_nInterval = 40;
};

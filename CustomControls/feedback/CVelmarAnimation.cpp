#include <CustomControls/feedback/CVelmarAnimation.h>

#include <QTimer>

#include <limits>

CVelmarAnimation::CVelmarAnimation(QWidget* parent)
    : QLabel(parent)
    , m_pTimer(new QTimer)
{
    connect(m_pTimer, &QTimer::timeout, this, &CVelmarAnimation::SlotShowTimeout);
    m_pTimer->start(m_nInterval);
}

CVelmarAnimation::~CVelmarAnimation()
{
    delete m_pTimer;
}

void CVelmarAnimation::InsertImage(const QList<QString>& images)
{
    m_strlistImage = images;
}

void CVelmarAnimation::SetShowIntervalTime(int ms)
{
    m_nIndex = 0;
    UpdateShowImage();
    m_pTimer->start(ms < 0 ? m_nInterval : ms);
}

int CVelmarAnimation::Interval() const
{
    return m_pTimer->interval();
}

void CVelmarAnimation::SlotShowTimeout()
{
    // Without images the index counts on: a list that comes later shows from its beginning only once it is told to.
    if (m_nIndex == m_strlistImage.size() - 1) {
        m_nIndex = 0;
    } else if (m_nIndex < std::numeric_limits<int>::max()) {
        ++m_nIndex;
    }
    UpdateShowImage();
}

void CVelmarAnimation::UpdateShowImage()
{
    if (m_nIndex >= m_strlistImage.size()) {
        return;
    }
    const QString sheet = QStringLiteral("image:") + m_strlistImage.at(m_nIndex) + QLatin1Char(';');
    // The toolkit works through a sheet anew even where it is the same one, as with a single image.
    if (sheet != styleSheet()) {
        setStyleSheet(sheet);
    }
}

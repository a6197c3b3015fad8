#include "StockBox.h"

#include "../GalleryStyle.h"

#include <CorvaneBase/CorvaneFonts.h>
#include <CustomControls/buttons/CSelectButton.h>

#include <QButtonGroup>
#include <QHBoxLayout>

namespace {
constexpr QSize BoxSize(400, 240);
constexpr int TileHeight = 112;
} // namespace

//! [pop-ups]
StockBox::StockBox(QWidget* parent)
    : CVelmarSelectBox(parent)
    , m_pKinds(new QButtonGroup(this))
{
    setObjectName(QStringLiteral("stockBox"));
    SetBoxInfo(QStringLiteral(":/icon/selectbox/stock/ico_scanning_box.png"), tr("添加毛坯"), tr("添加"));
    SetBaseSize(BoxSize.width(), BoxSize.height());

    struct Kind
    {
        const char* picture;
        QString text;
    };
    const Kind kinds[] = {{"box", tr("方料")}, {"cylinder", tr("圆料")}, {"stl", tr("模型")}};
    auto* choice = new QWidget;
    auto* row = new QHBoxLayout(choice);
    row->setContentsMargins(16, 12, 16, 12);
    row->setSpacing(12);
    for (const Kind& kind : kinds) {
        auto* tile = new CSelectButton(choice);
        tile->setObjectName(QStringLiteral("stockKind-") + QLatin1String(kind.picture));
        tile->setIcon(QStringLiteral(":/icon/selectbox/stock/ico_scanning_%1.png").arg(QLatin1String(kind.picture)));
        tile->setText(kind.text);
        tile->setFixedHeight(TileHeight);
        tile->setCursor(Qt::PointingHandCursor);
        tile->setChecked(m_pKinds->buttons().isEmpty());
        m_pKinds->addButton(tile, int(m_names.size()));
        m_names.append(kind.text);
        row->addWidget(tile);
    }
    SetChildUI(choice);
}

void StockBox::SlotConfirm()
{
    Q_EMIT SignalStockAdded(m_names.value(m_pKinds->checkedId()));
    close();
}
//! [pop-ups]

#include <CustomControls/messagebox/CVelmarMessageListItem.h>

#include <tests/documentation/Example.h>

EXAMPLE(CVelmarMessageListItem)
{
    // [example]
    auto* titles = new CVelmarMessageListItem(panel);
    titles->SetIsHeader(true);
    auto* row = new CVelmarMessageListItem(panel);
    row->SetIsHeader(false);
    row->SetContent("End mill", "D6 L50", "1", MachiningRough); // once for each row
    layout->addWidget(titles);
    layout->addWidget(row);
    // [/example]
    QCOMPARE(row->size(), QSize(436, 35));
}

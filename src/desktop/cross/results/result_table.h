#pragma once

#include <QColor>
#include <QIcon>
#include <QStringList>

#include <map>
#include <vector>

class QTableWidget;

/// Tables of results: only read, and as high as their rows.
namespace kavela::desktop {

struct ResultRow {
    QStringList texts;
    QIcon badge;                   ///< before the text of the first column
    QColor ground;                 ///< invalid for none
    std::map<int, QColor> colours; ///< of the texts, by column
};

/// The first column takes the room that is left; from `firstNumber` on the texts are numbers.
[[nodiscard]] QTableWidget* resultTable(const QString& name, const QStringList& titles,
                                        int firstNumber);

void fillResults(QTableWidget& table, const std::vector<ResultRow>& rows, int firstNumber);

/// All rows as tab-separated text with the headers, or the selected ones if there are any.
[[nodiscard]] QString copiedText(const QTableWidget& table, bool onlySelected);

} // namespace kavela::desktop

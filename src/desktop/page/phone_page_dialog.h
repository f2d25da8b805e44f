#pragma once

#include "page/athlete_page.h"

#include <QDialog>
#include <QString>
#include <QStringList>

#include <optional>
#include <string>
#include <vector>

class QCheckBox;
class QComboBox;
class QLabel;
class QPushButton;

namespace kavela {
class FactStore;
}

namespace kavela::desktop {

/// Somebody whose page can be made.
struct PhonePageCrew {
    std::string key;
    QString name;      ///< as lists write it
    QString category;  ///< empty for none
    QStringList races; ///< split files with runs of theirs
};

/// What a window offers pages of.
struct PhonePageRequest {
    std::vector<PhonePageCrew> crews;
    std::string shownCrew;  ///< key of whom the window shows
    page::PageChoice shown; ///< how the times are to be shown, and what narrows them
};

/// Each crew of a store once in each of its categories, by name.
[[nodiscard]] std::vector<PhonePageCrew> phonePageCrews(const FactStore& facts);

/// Asks whose page is to be made, and whether with clips of the runs.
class PhonePageDialog : public QDialog {
    Q_OBJECT

public:
    PhonePageDialog(PhonePageRequest request, QWidget* parent);

    /// Nothing where what is typed is no crew of the list.
    [[nodiscard]] const PhonePageCrew* crew() const;
    [[nodiscard]] const PhonePageRequest& request() const { return m_request; }
    [[nodiscard]] bool wantsClips() const;

private:
    void showChoice();

    PhonePageRequest m_request;
    QComboBox* m_crews;
    QCheckBox* m_clips;
    QLabel* m_remark;
    QPushButton* m_save = nullptr;
};

} // namespace kavela::desktop

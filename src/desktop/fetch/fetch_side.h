#pragma once

#include "desktop/shell/forms/record_form.h"
#include "fetch/fetch_source.h"

#include <QWidget>

#include <functional>
#include <string>

namespace kavela::desktop {

class SiteList;

/// Where films are fetched from, whose, and where they go: the side of the window of fetching.
class FetchSide : public QWidget {
    Q_OBJECT

public:
    /// Changes the source, and shows it again.
    using Edit = std::function<void(const std::function<void(fetch::filmsource001&)>& change)>;

    explicit FetchSide(Edit edit, QWidget* parent = nullptr);

    [[nodiscard]] RecordForm<fetch::filmsource001>& form() const { return *m_form; }
    [[nodiscard]] SiteList& sites() const { return *m_sites; }

signals:
    void bibsWanted();
    void folderWanted();
    void entered(); ///< Enter in a field
    /// Told later than the click: the list may be shown anew.
    void siteTicked(const std::string& site, bool isTicked);

private:
    void makeForm(Edit edit);

    RecordForm<fetch::filmsource001>* m_form = nullptr;
    SiteList* m_sites = nullptr;
};

} // namespace kavela::desktop

#pragma once

#include "fetch/address.h"

#include <QString>
#include <QWidget>

#include <functional>
#include <string>

namespace kavela::desktop {

template <class Record>
class RecordForm;
class Workspace;

/// What is shared with what, as it is typed: a folder of this computer and one of a server.
class SharePlace : public QWidget {
    Q_OBJECT

public:
    struct Typed {
        std::string folder;
        std::string address;
    };

    /// With what was shared last.
    explicit SharePlace(Workspace& workspace);

    [[nodiscard]] const Typed& typed() const { return m_typed; }
    void set(const Typed& place);
    /// A folder that was shared before goes to where it went.
    void setFolder(const QString& folder);
    [[nodiscard]] fetch::Address address() const;
    /// The first field that has yet to be typed takes the keys.
    void editEmpty();
    /// The next start, and setFolder(), know it.
    void remember();

    /// Why nothing can be shared there; empty where it can.
    [[nodiscard]] QString fault() const;
    [[nodiscard]] QString faultOfAddress() const;

signals:
    void changed();
    void folderWanted(); ///< the coach wants to choose one
    void entered();      ///< Enter in a field

private:
    void makeForm();
    void edit(const std::function<void(Typed&)>& change);
    [[nodiscard]] std::string addressOf(const std::string& folder) const;

    Workspace& m_workspace;
    Typed m_typed;
    RecordForm<Typed>* m_form = nullptr;
};

} // namespace kavela::desktop

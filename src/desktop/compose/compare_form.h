#pragma once

#include "compose/compose_job.h"
#include "desktop/shell/forms/record_form.h"

#include <cstddef>
#include <string>
#include <vector>

namespace kavela::desktop {

class SplitChoice;

/// How films are seen together: layout, synchronisation, part, speed, captions, size.
class CompareForm : public RecordForm<composejob002> {
public:
    explicit CompareForm(Edit edit, QWidget* parent = nullptr);

    /// Shows a job; fields that mean nothing for it are hidden.
    void showComparison(const composejob002& job, bool isOther = false);
    /// The splits to choose from; the titles are those of split 1 on.
    void showSplits(std::size_t count, const std::vector<std::string>& titles);

private:
    void addTimes();
    template <class Member>
    void splitChoice(const FieldFacts& facts, int least, Member member);
    void addCaptions();
    void addOutput();

    std::vector<SplitChoice*> m_splits;
};

} // namespace kavela::desktop

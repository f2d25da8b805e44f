#pragma once

#include "common/text.h"
#include "language/catalogue_data.h"
#include "language/languages.h"

namespace kavela {

/// A catalogue that is built in: nothing is read or made when the program starts.
class StaticCatalogue : public TextCatalogue {
public:
    StaticCatalogue(const Language& language, const CatalogueData& data);
    /// Only for the list of them, before anyone looks one up.
    StaticCatalogue(StaticCatalogue&& other) noexcept;

    [[nodiscard]] std::string_view code() const { return m_language.code; }

    [[nodiscard]] std::string_view of(std::string_view text) const override;
    [[nodiscard]] std::string_view of(std::string_view text, std::int64_t count) const override;
    [[nodiscard]] char decimalSign() const override { return m_language.decimalSign; }

private:
    [[nodiscard]] std::string_view form(std::string_view text, std::size_t number,
                                        bool isCounted) const;

    Language m_language;
    CatalogueData m_data;
};

} // namespace kavela

#pragma once

#include "films/film_scene.h"
#include "films/fixed_scene.h"
#include "splitdata/document.h"

#include <filesystem>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace kavela::films {

/// A film of the sample season before it is made.
struct PlannedFilm {
    std::filesystem::path name;                   ///< relative, in the folder of its split file
    std::shared_ptr<const FilmScene> scene;       ///< null for one of a camera on a tripod
    std::shared_ptr<const FixedScene> fixed = {}; ///< null for all others
};

/// The films of the sample season, each camera's of every run: of the final of its most
/// international race, of a smaller race and of a training, and the one film of all sprints before
/// a camera on a tripod; apart from those whose name is not
/// wanted. Needs a QGuiApplication.
[[nodiscard]] std::vector<PlannedFilm>
seasonFilms(const std::function<bool(const std::filesystem::path&)>& isWanted);

/// The films of one session, whose split file stands in `folder`. Runs without any mark on a
/// camera's film have none of that camera. Throws as runOnFilm() does for other runs.
[[nodiscard]] std::vector<PlannedFilm>
sessionFilms(const splittakerdata031& session, const std::filesystem::path& folder,
             const std::function<bool(const std::filesystem::path&)>& isWanted);

/// Makes a film, 50 frames a second with a key frame every 50: the bytes of its file. Takes some
/// seconds. Throws FilmError.
[[nodiscard]] std::string makeFilm(const FilmScene& scene);
[[nodiscard]] std::string makeFilm(const FixedScene& scene);
[[nodiscard]] std::string makeFilm(const PlannedFilm& film);

} // namespace kavela::films

#include "desktop/shell/diagnostic_log.h"

#include <spdlog/sinks/rotating_file_sink.h>
#include <spdlog/sinks/stdout_sinks.h>
#include <spdlog/spdlog.h>

namespace kavela::desktop {

namespace {

constexpr std::size_t LargestFile = 1U << 20;
constexpr std::size_t KeptFiles = 3;

std::shared_ptr<spdlog::logger> loggerFor(const std::filesystem::path& file) {
    try {
        return std::make_shared<spdlog::logger>(
            "kavela", std::make_shared<spdlog::sinks::rotating_file_sink_mt>(
                          file.string(), LargestFile, KeptFiles));
    } catch (const spdlog::spdlog_ex&) {
        return std::make_shared<spdlog::logger>("kavela",
                                                std::make_shared<spdlog::sinks::stderr_sink_mt>());
    }
}

} // namespace

DiagnosticLog rotatingLog(const std::filesystem::path& file) {
    const auto logger = loggerFor(file);
    logger->set_pattern("%Y-%m-%d %H:%M:%S  %v");
    logger->flush_on(spdlog::level::info);
    return [logger](std::string_view line) {
        logger->info(spdlog::string_view_t(line.data(), line.size()));
    };
}

} // namespace kavela::desktop

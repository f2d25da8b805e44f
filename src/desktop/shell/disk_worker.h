#pragma once

#include <chrono>
#include <exception>
#include <filesystem>
#include <functional>
#include <string>

class QObject;

/// The one thread that writes for every window, so that none waits for a disk. Tasks run in the
/// order in which they were given: what is forgotten after it was kept stays forgotten.
namespace kavela::desktop::disk {

/// What a task throws is lost: it has to tell by itself.
void run(std::function<void()> task);

/// `done` is called on the interface thread, as long as `context` is there, with what the task
/// threw, or null.
void run(QObject& context, std::function<void()> task,
         std::function<void(const std::exception_ptr& fault)> done);

/// The same for what a coach waits for, such as a small file: `done` is called before this returns
/// where the task has ended within the patience, after all that was given before it; otherwise it
/// is told as above. So a disk that is well seems to answer at once, and a slow one holds up
/// nobody.
void runAwaited(QObject& context, std::function<void()> task,
                std::function<void(const std::exception_ptr& fault)> done);

/// Writes a file that a coach asked for, such as a list, in the same way; safely as
/// writeFileSafely() does.
void writeAwaited(QObject& context, const std::filesystem::path& file, std::string content,
                  std::function<void(const std::exception_ptr& fault)> done);

/// How long this and BackgroundWork::runAwaited() wait on the interface thread; so short at the
/// start of the program that nobody notices. Another one is for tests. For the interface thread.
[[nodiscard]] std::chrono::milliseconds patience();
void setPatience(std::chrono::milliseconds patience);

/// Returns once every task given so far has run. What they have to tell may still be on its way.
void waitForAll();

} // namespace kavela::desktop::disk

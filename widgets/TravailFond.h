// Work beside the main thread, one job after another: a start shared evenly between two cores.
#pragma once

#include <functional>
#include <future>

/// Does the job on another thread when those given before are done. To be called from the main thread.
std::shared_future<void> FaitAuFond(std::function<void()> travail);

/// Waits until every job is done.
void AttendFond();

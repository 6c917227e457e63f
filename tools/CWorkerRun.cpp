#include "tools/CWorkerRun.h"

#include "tools/CFileRun.h"
#include "tools/interrupt.h"

#include <algorithm>
#include <charconv>

namespace tool {

// Results that wait for a file ahead of theirs. Beyond, no more files are begun.
static constexpr std::uint64_t kNbWaiting = 1024;
static constexpr std::size_t kNbWaitingBytes = 1U << 24;

static std::vector<std::string> workerArguments(const CFileRun& run)
{
    std::vector<std::string> arguments = {run.command, "--worker"};
    if (run.asJson)
        arguments.push_back("--json");
    arguments.insert(arguments.end(), run.workerArguments.begin(), run.workerArguments.end());
    return arguments;
}

CWorkerRun::CWorkerRun(const CFileRun& run, CFileResults& results)
    : mRun(run), mResults(results), mList(run), mWorkers(workerArguments(run), run.nbJobs),
      mJobs(static_cast<std::size_t>(run.nbJobs))
{
}

bool CWorkerRun::hasRoom() const
{
    return mNbListed - mNbTold < kNbWaiting && mNbWaitingBytes < kNbWaitingBytes;
}

void CWorkerRun::put(std::uint64_t number, CFileResult result)
{
    if (mRun.givesObjects()) {
        ++mNbTold;
        return mResults.add(result);
    }
    mNbWaitingBytes += result.text.size();
    mWaiting.emplace(number, std::move(result));
    for (auto first = mWaiting.begin(); first != mWaiting.end() && first->first == mNbTold;
         first = mWaiting.erase(first)) {
        ++mNbTold;
        mNbWaitingBytes -= first->second.text.size();
        mResults.add(first->second);
    }
}

// The next file that needs a worker.
bool CWorkerRun::nextFile(CListedFile& file)
{
    while (mList.next(file)) {
        if (mResults.isDone(file.path))
            continue;
        if (file.failure.empty())
            return true;
        put(mNbListed++, makeResult(mRun, file.path, eIoError, file.failure));
    }
    return false;
}

// Gives a file to each worker that has none; false when all are without and no file is left.
bool CWorkerRun::giveOut()
{
    bool isBusy = false;
    bool hasFiles = true;
    for (std::size_t i = 0; i < mJobs.size(); ++i) {
        CListedFile file;
        if (!mJobs[i] && hasFiles && hasRoom() && (hasFiles = nextFile(file))) {
            mJobs[i] = CJob{mNbListed++, file.path, ""};
            mWorkers.send(static_cast<int>(i), file.path + '\0');
        }
        isBusy = isBusy || mJobs[i];
    }
    return isBusy;
}

// Takes the answer of a worker if it is complete.
bool CWorkerRun::isAnswered(int worker)
{
    std::optional<CJob>& job = mJobs[static_cast<std::size_t>(worker)];
    const std::string& answer = job->answer;
    const std::size_t lineEnd = answer.find('\n');
    if (lineEnd == std::string::npos)
        return false;
    int code = 0;
    std::size_t size = 0;
    const char* const end = answer.data() + lineEnd;
    const char* const behind = std::from_chars(answer.data(), end, code).ptr;
    std::from_chars(std::min(behind + 1, end), end, size);
    if (answer.size() - lineEnd - 1 < size)
        return false;
    const CJob done = std::exchange(job, std::nullopt).value();
    put(done.number, {done.file, static_cast<EExit>(code), done.answer.substr(lineEnd + 1)});
    return true;
}

void CWorkerRun::receive()
{
    const CWorkers::CNews news = mWorkers.wait();
    checkInterrupt();
    std::optional<CJob>& job = mJobs[static_cast<std::size_t>(news.worker)];
    if (!job)
        return;
    job->answer += news.bytes;
    if (isAnswered(news.worker) || news.end.empty())
        return;
    const CJob lost = std::exchange(job, std::nullopt).value();
    put(lost.number,
        makeResult(mRun, lost.file, eCrashed, lost.file + ": the worker process " + news.end));
}

void CWorkerRun::work()
{
    while (giveOut())
        receive();
}

} // namespace tool

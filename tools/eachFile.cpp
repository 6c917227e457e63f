#include "tools/eachFile.h"

#include "tools/CFileResults.h"
#include "tools/CFileRun.h"
#include "tools/CProgressBar.h"
#include "tools/CToolOutput.h"
#include "tools/CWorkerRun.h"
#include "tools/interrupt.h"

#include <nlohmann/json.hpp>

namespace tool {

using nlohmann::ordered_json;

static CFileResult workOn(const std::string& file, const CFileRun& run, const CFileCommand& command)
{
    ordered_json fields = ordered_json::object();
    EExit code = eDone;
    std::string failure;
    try {
        code = command({file, run.givesObjects() ? &fields : nullptr});
    } catch (const CRunError&) {
        throw;
    } catch (const CToolError& error) {
        checkInterrupt();
        code = error.code();
        failure = error.what();
    } catch (const std::exception& error) { // such as a file too big for the memory
        checkInterrupt();
        code = eIoError;
        failure = file + ": " + error.what();
    }
    return makeResult(run, file, code, failure, fields);
}

static EExit inTurn(const CFileRun& run, const CFileCommand& command, CToolOutput& output)
{
    CFileResults results(run, output);
    CFileList list(run);
    for (CListedFile file; list.next(file); checkInterrupt()) {
        if (!file.failure.empty())
            results.add(makeResult(run, file.path, eIoError, file.failure));
        else if (!results.isDone(file.path))
            results.add(workOn(file.path, run, command));
    }
    return results.getWorst();
}

// The other side of CWorkerRun.
static EExit asWorker(const CFileRun& run, const CFileCommand& command, CToolOutput& output)
{
    CWorkers::endWithStarter();
    CProgressBar::turnOff();
    output.hold();
    for (std::string file; readPath('\0', file); checkInterrupt()) {
        const CFileResult result = workOn(file, run, command);
        const std::string text = output.take() + result.text;
        output.pass(std::to_string(result.code) + " " + std::to_string(text.size()) + "\n" + text);
    }
    return eDone;
}

EExit eachFile(const CFileRun& run, const CFileCommand& command, CToolOutput& output)
{
    if (run.isWorker)
        return asWorker(run, command, output);
    if (run.nbJobs == 0)
        return inTurn(run, command, output);
    if (!CWorkers::areSupported()) {
        complain("this system has no worker processes; the files come one after the other");
        return inTurn(run, command, output);
    }
    CFileResults results(run, output);
    CWorkerRun(run, results).work();
    return results.getWorst();
}

} // namespace tool

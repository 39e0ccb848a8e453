// SPDX-FileCopyrightText: Corvel print dialog authors
// SPDX-License-Identifier: Apache-2.0

#include "PagesJobs.h"

#include <exception>
#include <new>

namespace printdialog {

PagesAnswer answerTo(const PagesRequest &request, const std::vector<DocumentBytes> &documents,
                     Pipeline &output)
{
    using Outcome = PagesAnswer::Outcome;
    PagesAnswer answer;
    std::uint32_t current = 0;
    try {
        if (request.job == PagesRequest::Job::Compose)
            answer = composeSheets(request, documents, output, current);
        else if (!documents.empty())
            answer = readPages(request, documents.front(), output);
        return answer;
    } catch (const PasswordError &error) {
        answer.outcome = error.isMissing ? Outcome::NeedsPassword : Outcome::WrongPassword;
    } catch (const std::bad_alloc &) {
        answer.outcome = Outcome::TooCostly;
    } catch (const std::exception &) {
        answer.outcome = Outcome::Broken;
    }
    answer.document = current;
    return answer;
}

} // namespace printdialog

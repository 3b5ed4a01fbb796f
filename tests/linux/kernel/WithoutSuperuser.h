// Gives up a superuser's right to open every file, so that what a file's mode forbids is
// forbidden in a test that root runs, too.
//
// Threads: for the calling one and those that it starts; programs that it starts get the
// right back. Errors: rights that can't be given up stop the program.
#pragma once

namespace vantrel::test {

void withoutSuperuser();

}  // namespace vantrel::test

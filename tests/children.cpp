#include "tests/children.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cstdlib>
#include <string>

int InChild(const std::function<int()>& work) {
  const pid_t child = fork();
  if (child == 0) _exit(work());
  int status = 0;
  waitpid(child, &status, 0);
  return WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
}

void DropPrivileges() {
  constexpr uid_t kNobody = 65534;
  if (geteuid() == 0 && seteuid(kNobody) != 0) abort();
}

void LimitFileSizes(unsigned long bytes) {
  const rlimit limit{bytes, bytes};
  if (setrlimit(RLIMIT_FSIZE, &limit) != 0) abort();
}

bool MountSmallDisk(const char* folder) {
  if (unshare(CLONE_NEWNS) != 0 && unshare(CLONE_NEWNS | CLONE_NEWUSER) != 0) return false;
  const std::string size = "size=" + std::to_string(kSmallDisk);
  return mount("none", "/", "none", MS_REC | MS_PRIVATE, nullptr) == 0 &&
         mount("tmpfs", folder, "tmpfs", 0, size.c_str()) == 0;
}

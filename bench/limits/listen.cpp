#include <arpa/inet.h>
#include <cstdio>
#include <sys/socket.h>
#include <unistd.h>

/// The smallest server there is: listens on a free port of the loopback, says which, and waits.
int main() {
  const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
  sockaddr_in address{};
  address.sin_family = AF_INET;
  address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
  socklen_t size = sizeof address;
  if (bind(listener, reinterpret_cast<sockaddr*>(&address), size) != 0 ||
      listen(listener, SOMAXCONN) != 0 ||
      getsockname(listener, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
    std::perror("listen");
    return 1;
  }
  std::printf("http://127.0.0.1:%d/\n", ntohs(address.sin_port));
  std::fflush(stdout);
  for (;;) pause();
}

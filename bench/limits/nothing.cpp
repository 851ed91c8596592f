/// What every command takes: a process is made, and ends.
int main() {}

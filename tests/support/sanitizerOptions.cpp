/// Read by the sanitizers when the program starts: a request for too much memory fails as it does
/// without them, since tests make such requests.
extern "C" {
const char* __asan_default_options();
const char* __tsan_default_options();

const char* __asan_default_options()
{
    return "allocator_may_return_null=1";
}

const char* __tsan_default_options()
{
    return "allocator_may_return_null=1";
}
}

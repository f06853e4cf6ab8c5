// One name that is taken, and one that is this file's own affair.
namespace quillomat {
namespace {

struct Own {};

}  // namespace

struct Example {};

}  // namespace quillomat

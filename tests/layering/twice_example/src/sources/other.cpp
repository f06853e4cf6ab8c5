// The own affair of another file.
namespace quillomat {
namespace {

struct Own {};

}  // namespace
}  // namespace quillomat

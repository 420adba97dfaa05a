# The Debian package that `cpack` makes of an optimised build.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_NAME ${PROJECT_NAME})
set(CPACK_PACKAGE_VENDOR "The Lens Bench authors")
set(CPACK_PACKAGE_CONTACT "The Lens Bench authors <lensbench@lensbench.invalid>")
set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "bench for the optics of lenses")
set(CPACK_DEBIAN_PACKAGE_DESCRIPTION
"For students and teachers: shows how light passes through a lens, as rays and
as waves, refracted at every face by Ibn Sahl's law. There are spherical
lenses with their cardinal points and a diaphragm, a single ray to aim, and
Ibn Sahl's hyperbolic lenses. All texts are in Greek and in English.")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
# Whatever the builder's umask is.
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_RELEASE 1)
set(CPACK_DEBIAN_PACKAGE_SECTION science)
set(CPACK_DEBIAN_COMPRESSION_TYPE xz)
# The libraries as the linker finds them, the faces that carry the Greek texts, and what a desktop
# without X11 needs on top.
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_DEPENDS fonts-liberation)
set(CPACK_DEBIAN_PACKAGE_RECOMMENDS qt6-wayland)
include(CPack)

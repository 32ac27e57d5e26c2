# Who the program is, for the desktop, the packages and the manual pages. Whoever publishes it under another name or
# address sets these on CMake's command line.
set(VELMARIS_IDENTIFIANT "org.velmaris.Velmaris" CACHE STRING "Identifier on the desktop, a domain name turned round")
set(VELMARIS_SITE "https://www.velmaris.org/" CACHE STRING "Home page, with its last slash")
set(VELMARIS_COURRIEL "velmaris@velmaris.org" CACHE STRING "Address that the packages give")
set(VELMARIS_AUTEURS "The Velmaris team" CACHE STRING "Who makes and publishes the program")
set(VELMARIS_AUTEURS_FR "L'équipe de Velmaris" CACHE STRING "The same in French")
set(VELMARIS_RESUME_FR "Navigation astronomique au sextant")
set(VELMARIS_RESUME_EN "Celestial navigation with a sextant")

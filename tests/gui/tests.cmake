# Qt front-end tests: added with the window.

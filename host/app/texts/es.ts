<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>CommandLine</name>
    <message>
        <source>The link is too long, or not one line.</source>
        <translation>El enlace es demasiado largo o no es una sola línea.</translation>
    </message>
    <message>
        <source>No running xbrhost waits for this link. Start the sign-in again.</source>
        <translation>Ningún xbrhost en marcha espera este enlace. Inicie la sesión de nuevo.</translation>
    </message>
    <message>
        <source>xbrhost help tells more.</source>
        <translation>xbrhost help explica más.</translation>
    </message>
    <message>
        <source>Nearest: %1.</source>
        <translation>Lo más parecido: %1.</translation>
    </message>
    <message>
        <source>There is no command “%1”.</source>
        <translation>No existe la orden «%1».</translation>
    </message>
    <message>
        <source>“%1” is one word too many.</source>
        <translation>«%1» es una palabra de más.</translation>
    </message>
    <message>
        <source>%1 needs a value behind it.</source>
        <translation>Falta un valor detrás de %1.</translation>
    </message>
    <message>
        <source>There is no option “%1” for “%2”.</source>
        <translation>No hay opción «%1» para «%2».</translation>
    </message>
    <message>
        <source>%1 takes no value.</source>
        <translation>%1 no lleva valor.</translation>
    </message>
    <message>
        <source>%1 needs a whole number from 1 to %2.</source>
        <translation>%1 necesita un número entero de 1 a %2.</translation>
    </message>
    <message>
        <source>%1 belongs to the song before it: put it behind a song.</source>
        <translation>%1 corresponde a la canción anterior: póngalo detrás de una canción.</translation>
    </message>
    <message>
        <source>%1 is there twice.</source>
        <translation>%1 aparece dos veces.</translation>
    </message>
    <message>
        <source>open-url needs a link.</source>
        <translation>open-url necesita un enlace.</translation>
    </message>
    <message>
        <source>--release tells all about the release: leave out songs and details.</source>
        <translation>--release lo dice todo del lanzamiento: omita canciones y datos.</translation>
    </message>
    <message>
        <source>publish needs a song, or a folder with songs.</source>
        <translation>publish necesita una canción o una carpeta con canciones.</translation>
    </message>
    <message>
        <source>--album-title and --album-artist need --album: a single bears the title and the artist of its song.</source>
        <translation>--album-title y --album-artist necesitan --album: un sencillo lleva el título y el artista de su canción.</translation>
    </message>
    <message>
        <source>%1 is empty; leave it out to keep what the file&apos;s tags say.</source>
        <translation>%1 está vacío; omítalo para conservar lo que dicen las etiquetas del archivo.</translation>
    </message>
    <message>
        <source>%1 is not UTF-8.</source>
        <translation>%1 no es UTF-8.</translation>
    </message>
    <message>
        <source>%1 holds a line break or another control character.</source>
        <translation>%1 contiene un salto de línea u otro carácter de control.</translation>
    </message>
    <message>
        <source>has no panel</source>
        <translation>no tiene panel</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1.</source>
        <translation>No se puede recibir la respuesta del navegador al iniciar sesión: %1.</translation>
    </message>
    <message>
        <source>“%1” cannot be read: %2.</source>
        <translation>«%1» no se puede leer: %2.</translation>
    </message>
    <message>
        <source>“%1” and the folders in it hold no songs.</source>
        <translation>«%1» y sus carpetas no contienen canciones.</translation>
    </message>
    <message>
        <source>“%1” holds no songs; --recursive looks into the folders in it, too.</source>
        <translation>«%1» no contiene canciones; --recursive mira también en sus carpetas.</translation>
    </message>
    <message>
        <source>--title and --track-number belong to one song, and “%1” is a folder.</source>
        <translation>--title y --track-number corresponden a una canción, y «%1» es una carpeta.</translation>
    </message>
    <message>
        <source>No genre holds “%1”.</source>
        <translation>Ningún género contiene «%1».</translation>
    </message>
    <message>
        <source>No genre holds “%1”. Nearest: %2.</source>
        <translation>Ningún género contiene «%1». Lo más parecido: %2.</translation>
    </message>
    <message>
        <source>takes no songs</source>
        <translation>no acepta canciones</translation>
    </message>
</context>
<context>
    <name>LineTexts</name>
    <message>
        <source>no bytes for %1</source>
        <translation>sin bytes desde hace %1</translation>
    </message>
    <message>
        <source>waiting for the answer</source>
        <translation>esperando la respuesta</translation>
    </message>
    <message>
        <source>%1 left, all %2</source>
        <translation>quedan %1, todas %2</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>quedan %1</translation>
    </message>
</context>
<context>
    <name>Output</name>
    <message>
        <source>The browser came back without a permission. Allow the access there, or end with Ctrl-C.</source>
        <translation>El navegador ha vuelto sin permiso. Permita allí el acceso o termine con Ctrl-C.</translation>
    </message>
    <message>
        <source>Publish the other songs?</source>
        <translation>¿Publicar las demás canciones?</translation>
    </message>
    <message>
        <source>published</source>
        <translation>publicada</translation>
    </message>
    <message>
        <source>not published</source>
        <translation>no publicada</translation>
    </message>
    <message>
        <source>refused, details are missing</source>
        <translation>rechazada, faltan datos</translation>
    </message>
    <message>
        <source>(not set)</source>
        <translation>(sin indicar)</translation>
    </message>
    <message>
        <source>%1, rendered from “%2”</source>
        <translation>%1, convertido de «%2»</translation>
    </message>
    <message>
        <source>Release %1 of %2 (incomplete)</source>
        <translation>Lanzamiento %1 de %2 (incompleto)</translation>
    </message>
    <message>
        <source>Release %1 of %2</source>
        <translation>Lanzamiento %1 de %2</translation>
    </message>
    <message>
        <source>  Title: %1</source>
        <translation>  Título: %1</translation>
    </message>
    <message>
        <source>  Artist: %1</source>
        <translation>  Artista: %1</translation>
    </message>
    <message>
        <source>  Genre: %1</source>
        <translation>  Género: %1</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs as singles.</source>
        <translation>Publicadas %1 de %2 canciones como sencillos.</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs as singles, as %3.</source>
        <translation>Publicadas %1 de %2 canciones como sencillos, como %3.</translation>
    </message>
    <message>
        <source>Perhaps published: %1: it was sent, the answer did not come. Look at your account page.</source>
        <translation>Quizá publicada: %1: se envió, la respuesta no llegó. Mire su página de cuenta.</translation>
    </message>
    <message>
        <source>Not published: %1: %2</source>
        <translation>No publicada: %1: %2</translation>
    </message>
    <message>
        <source>Waiting for your permission in the browser. If no page opened, open this address:</source>
        <translation>Esperando su permiso en el navegador. Si no se abrió ninguna página, abra esta dirección:</translation>
    </message>
    <message>
        <source>Hand it over with: %1</source>
        <translation>Entregue el enlace de vuelta con: %1</translation>
    </message>
    <message>
        <source>%1%2: sending %3</source>
        <translation>%1%2: enviando %3</translation>
    </message>
    <message>
        <source>%1%2: %3 %, %4 of %5, %6 left, all %7 left</source>
        <translation>%1%2: %3 %, %4 de %5, quedan %6, en total %7</translation>
    </message>
    <message>
        <source>Sent %1 in %2, %3/s.</source>
        <translation>Enviados %1 en %2, %3/s.</translation>
    </message>
    <message>
        <source>Link back (paste it here if the browser does not return by itself):</source>
        <translation>Enlace de vuelta (péguelo aquí si el navegador no vuelve por sí solo):</translation>
    </message>
    <message>
        <source>Publish them again?</source>
        <translation>¿Publicarlas otra vez?</translation>
    </message>
</context>
<context>
    <name>Words</name>
    <message>
        <source>The browser came back without a permission. Allow the access there, or cancel here.</source>
        <translation>El navegador volvió sin permiso. Permita allí el acceso o cancele aquí.</translation>
    </message>
    <message>
        <source>Signed out.</source>
        <translation>Sesión cerrada.</translation>
    </message>
    <message>
        <source>Waiting for your permission in the browser.</source>
        <translation>Esperando su permiso en el navegador.</translation>
    </message>
    <message>
        <source>Signing in…</source>
        <translation>Iniciando sesión…</translation>
    </message>
    <message>
        <source>it does not take the songs</source>
        <translation>no acepta las canciones</translation>
    </message>
    <message>
        <source>it does not take all songs</source>
        <translation>no acepta todas las canciones</translation>
    </message>
    <message>
        <source>it does not offer to upload the songs</source>
        <translation>no ofrece subir las canciones</translation>
    </message>
    <message>
        <source>Nothing was sent.</source>
        <translation>No se ha enviado nada.</translation>
    </message>
    <message>
        <source>The service refused “%1” (%2) and gave no reason.</source>
        <translation>El servicio ha rechazado «%1» (%2) sin dar un motivo.</translation>
    </message>
    <message>
        <source>The service refused the album “%1” (%2) and gave no reason.</source>
        <translation>El servicio ha rechazado el álbum «%1» (%2) sin dar un motivo.</translation>
    </message>
    <message>
        <source>The service refused “%1” (%2): %3</source>
        <translation>El servicio ha rechazado «%1» (%2): %3</translation>
    </message>
    <message>
        <source>The service refused the album “%1” (%2): %3</source>
        <translation>El servicio ha rechazado el álbum «%1» (%2): %3</translation>
    </message>
    <message>
        <source>The service refused “%1” because details are missing: %2.</source>
        <translation>El servicio ha rechazado «%1» porque faltan datos: %2.</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because details are missing: %2.</source>
        <translation>El servicio ha rechazado el álbum «%1» porque faltan datos: %2.</translation>
    </message>
    <message>
        <source>The service refused “%1” because details are missing, but none is empty here: %2</source>
        <translation>El servicio ha rechazado «%1» porque faltan datos, pero aquí no hay ninguno vacío: %2</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because details are missing, but none is empty here: %2</source>
        <translation>El servicio ha rechazado el álbum «%1» porque faltan datos, pero aquí no hay ninguno vacío: %2</translation>
    </message>
    <message>
        <source>The service does not accept the stored sign-in any more.</source>
        <translation>El servicio ya no acepta el inicio de sesión guardado.</translation>
    </message>
    <message>
        <source>The service refused “%1” because it is too large (%2).</source>
        <translation>El servicio ha rechazado «%1» porque es demasiado grande (%2).</translation>
    </message>
    <message>
        <source>The service refused the album “%1” because it is too large (%2).</source>
        <translation>El servicio ha rechazado el álbum «%1» porque es demasiado grande (%2).</translation>
    </message>
    <message>
        <source>The service asks to wait a while before the next upload. “%1” was not taken.</source>
        <translation>El servicio pide esperar un rato antes de la próxima subida. «%1» no se ha aceptado.</translation>
    </message>
    <message>
        <source>The service asks to wait a while before the next upload. The album “%1” was not taken.</source>
        <translation>El servicio pide esperar un rato antes de la próxima subida. El álbum «%1» no se ha aceptado.</translation>
    </message>
    <message>
        <source>The service has a fault (%2). “%1” was not taken; nothing is wrong with the song.</source>
        <translation>El servicio tiene un fallo (%2). «%1» no se ha aceptado; la canción está bien.</translation>
    </message>
    <message>
        <source>The service has a fault (%2). The album “%1” was not taken; nothing is wrong with it.</source>
        <translation>El servicio tiene un fallo (%2). El álbum «%1» no se ha aceptado; el álbum está bien.</translation>
    </message>
    <message>
        <source>%1 could not prove its identity: %2.</source>
        <translation>%1 no ha podido demostrar su identidad: %2.</translation>
    </message>
    <message>
        <source>The service at %1 cannot be reached: %2.</source>
        <translation>No se puede acceder al servicio en %1: %2.</translation>
    </message>
    <message>
        <source>Stopped after all of “%1” was sent, before the service answered. It may be published.</source>
        <translation>Detenido después de enviar todo «%1», antes de que el servicio respondiera. Puede que esté publicado.</translation>
    </message>
    <message>
        <source>Stopped after all of the album “%1” was sent, before the service answered. It may be published.</source>
        <translation>Detenido después de enviar todo el álbum «%1», antes de que el servicio respondiera. Puede que esté publicado.</translation>
    </message>
    <message>
        <source>The connection broke after all of “%1” was sent, before the service answered. It may be published.</source>
        <translation>La conexión se cortó después de enviar todo «%1», antes de que el servicio respondiera. Puede que esté publicado.</translation>
    </message>
    <message>
        <source>The connection broke after all of the album “%1” was sent, before the service answered. It may be published.</source>
        <translation>La conexión se cortó después de enviar todo el álbum «%1», antes de que el servicio respondiera. Puede que esté publicado.</translation>
    </message>
    <message>
        <source>“%1” was stopped at %2 of %3 and did not arrive.</source>
        <translation>«%1» se detuvo en %2 de %3 y no llegó.</translation>
    </message>
    <message>
        <source>The album “%1” was stopped at %2 of %3 and did not arrive.</source>
        <translation>El álbum «%1» se detuvo en %2 de %3 y no llegó.</translation>
    </message>
    <message>
        <source>The connection broke after %2 of %3. “%1” did not arrive.</source>
        <translation>La conexión se cortó después de %2 de %3. «%1» no llegó.</translation>
    </message>
    <message>
        <source>The connection broke after %2 of %3. The album “%1” did not arrive.</source>
        <translation>La conexión se cortó después de %2 de %3. El álbum «%1» no llegó.</translation>
    </message>
    <message>
        <source>“%2” is no longer there. “%1” was not sent.</source>
        <translation>«%2» ya no está. «%1» no se ha enviado.</translation>
    </message>
    <message>
        <source>“%2” is no longer there. The album “%1” is not complete.</source>
        <translation>«%2» ya no está. El álbum «%1» no está completo.</translation>
    </message>
    <message>
        <source>“%2” changed while it was copied. “%1” was not sent.</source>
        <translation>«%2» cambió mientras se copiaba. «%1» no se ha enviado.</translation>
    </message>
    <message>
        <source>“%2” changed while it was copied. The album “%1” is not complete.</source>
        <translation>«%2» cambió mientras se copiaba. El álbum «%1» no está completo.</translation>
    </message>
    <message>
        <source>There is not enough room in “%2”: %3 are needed, %4 are free. “%1” was not sent.</source>
        <translation>No hay suficiente espacio en «%2»: se necesitan %3, hay %4 libres. «%1» no se ha enviado.</translation>
    </message>
    <message>
        <source>There is not enough room in “%2”: %3 are needed, %4 are free. The album “%1” was not sent.</source>
        <translation>No hay suficiente espacio en «%2»: se necesitan %3, hay %4 libres. El álbum «%1» no se ha enviado.</translation>
    </message>
    <message>
        <source>The folder for copies, “%1”, cannot be written.</source>
        <translation>No se puede escribir en la carpeta para copias, «%1».</translation>
    </message>
    <message>
        <source>“%1” could not be prepared: %2. It was not sent.</source>
        <translation>No se pudo preparar «%1»: %2. No se ha enviado.</translation>
    </message>
    <message>
        <source>The album “%1” could not be prepared: %2. It was not sent.</source>
        <translation>No se pudo preparar el álbum «%1»: %2. No se ha enviado.</translation>
    </message>
    <message>
        <source>“%1” was not sent.</source>
        <translation>«%1» no se ha enviado.</translation>
    </message>
    <message>
        <source>The album “%1” was not sent.</source>
        <translation>El álbum «%1» no se ha enviado.</translation>
    </message>
    <message>
        <source>“%1” could not be prepared. It was not sent.</source>
        <translation>No se pudo preparar «%1». No se ha enviado.</translation>
    </message>
    <message>
        <source>The album “%1” could not be prepared. It was not sent.</source>
        <translation>No se pudo preparar el álbum «%1». No se ha enviado.</translation>
    </message>
    <message>
        <source>Published the album “%1” with one song.</source>
        <translation>Se ha publicado el álbum «%1» con una canción.</translation>
    </message>
    <message>
        <source>Published the album “%1” with %2 songs.</source>
        <translation>Se ha publicado el álbum «%1» con %2 canciones.</translation>
    </message>
    <message>
        <source>Published “%1”.</source>
        <translation>Se ha publicado «%1».</translation>
    </message>
    <message>
        <source>Published %1 songs as singles.</source>
        <translation>Se han publicado %1 canciones como sencillos.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <source>%1 of %2 songs are published.</source>
        <translation>%1 de %2 canciones están publicadas.</translation>
    </message>
    <message>
        <source>Signed in.</source>
        <translation>Sesión iniciada.</translation>
    </message>
    <message>
        <source>Signed in as %1.</source>
        <translation>Sesión iniciada como %1.</translation>
    </message>
    <message>
        <source>Not signed in: the sign-in was given up.</source>
        <translation>Sin iniciar sesión: se abandonó el inicio de sesión.</translation>
    </message>
    <message>
        <source>Not signed in: the service did not accept it.</source>
        <translation>Sin iniciar sesión: el servicio no lo ha aceptado.</translation>
    </message>
    <message>
        <source>Not signed in: the service refused it: %1.</source>
        <translation>Sin iniciar sesión: el servicio lo ha rechazado: %1.</translation>
    </message>
    <message>
        <source>Nothing waits to be sent. Choose “Reset” in the menu of a song first.</source>
        <translation>No hay nada pendiente de enviar. Elija antes «Restablecer» en el menú de una canción.</translation>
    </message>
    <message>
        <source>Published %1 of %2 songs. %3</source>
        <translation>Se han publicado %1 de %2 canciones. %3</translation>
    </message>
    <message>
        <source>No module was found. Songs cannot be published.</source>
        <translation>No se ha encontrado ningún módulo. No se pueden publicar canciones.</translation>
    </message>
    <message>
        <source>“%1” %2. Songs cannot be published.</source>
        <translation>«%1» %2. No se pueden publicar canciones.</translation>
    </message>
    <message>
        <source>album title</source>
        <translation>título del álbum</translation>
    </message>
    <message>
        <source>album artist</source>
        <translation>artista del álbum</translation>
    </message>
    <message>
        <source>genre</source>
        <translation>género</translation>
    </message>
    <message>
        <source>song title</source>
        <translation>título de la canción</translation>
    </message>
    <message>
        <source>song artist</source>
        <translation>artista de la canción</translation>
    </message>
    <message>
        <source>“%1” lacks: %2.</source>
        <translation>A «%1» le falta: %2.</translation>
    </message>
    <message>
        <source>The album lacks: %1.</source>
        <translation>Al álbum le falta: %1.</translation>
    </message>
    <message>
        <source>The album “%1” lacks: %2.</source>
        <translation>Al álbum «%1» le falta: %2.</translation>
    </message>
    <message>
        <source>The service does not know the genre “%1”.</source>
        <translation>El servicio no conoce el género «%1».</translation>
    </message>
    <message>
        <source>The service does not know the genre “%1”. Nearest: %2.</source>
        <translation>El servicio no conoce el género «%1». Lo más parecido: %2.</translation>
    </message>
    <message>
        <source>“%1” has the genre “%2”, which the service does not know.</source>
        <translation>«%1» tiene el género «%2», que el servicio no conoce.</translation>
    </message>
    <message>
        <source>“%1” has the genre “%2”, which the service does not know. Nearest: %3.</source>
        <translation>«%1» tiene el género «%2», que el servicio no conoce. Lo más parecido: %3.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is not there.</source>
        <translation>«%1» no se puede publicar: no está ahí.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it cannot be read.</source>
        <translation>«%1» no se puede publicar: no se puede leer.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it cannot be read (%2).</source>
        <translation>«%1» no se puede publicar: no se puede leer (%2).</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is not a file.</source>
        <translation>«%1» no se puede publicar: no es un archivo.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is %2, not %3 as its name says.</source>
        <translation>«%1» no se puede publicar: es %2, no %3 como dice su nombre.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is cut off.</source>
        <translation>«%1» no se puede publicar: está cortado.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it is cut off: %2 of %3.</source>
        <translation>«%1» no se puede publicar: está cortado: %2 de %3.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its sample rate of %2 cannot be right.</source>
        <translation>«%1» no se puede publicar: su frecuencia de muestreo de %2 no puede ser correcta.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it holds samples that are not numbers.</source>
        <translation>«%1» no se puede publicar: contiene muestras que no son números.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its name is not UTF-8.</source>
        <translation>«%1» no se puede publicar: su nombre no es UTF-8.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: its name holds control characters.</source>
        <translation>«%1» no se puede publicar: su nombre contiene caracteres de control.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it would have to become %2, which is not possible.</source>
        <translation>«%1» no se puede publicar: tendría que convertirse en %2, y no es posible.</translation>
    </message>
    <message>
        <source>“%1” cannot be published: it holds no audio that can be read.</source>
        <translation>«%1» no se puede publicar: no contiene audio que se pueda leer.</translation>
    </message>
    <message>
        <source>The settings of %1 cannot be read from “%2”.</source>
        <translation>No se pueden leer los ajustes de %1 en «%2».</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is wrong in “%3”, section [%4].</source>
        <translation>%1 no está configurado: %2 es incorrecto en «%3», sección [%4].</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is missing in “%3”, section [%4].</source>
        <translation>%1 no está configurado: falta %2 en «%3», sección [%4].</translation>
    </message>
    <message>
        <source>“%1” is there twice.</source>
        <translation>«%1» está dos veces.</translation>
    </message>
    <message>
        <source>“%1” and “%2” have the same file name; in an album each song needs its own.</source>
        <translation>«%1» y «%2» tienen el mismo nombre de archivo; en un álbum cada canción necesita el suyo.</translation>
    </message>
    <message>
        <source>“%1” and “%2” both have the number %3.</source>
        <translation>«%1» y «%2» tienen ambas el número %3.</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>quedan %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>“%1” is sent. Waiting for the service&apos;s answer.</source>
        <translation>«%1» se ha enviado. Esperando la respuesta del servicio.</translation>
    </message>
    <message>
        <source>Sending “%1”: no bytes have left for %2 s. Waiting for the connection.</source>
        <translation>Enviando «%1»: hace %2 s que no sale ningún byte. Esperando la conexión.</translation>
    </message>
    <message>
        <source>Sending the album “%1”</source>
        <translation>Enviando el álbum «%1»</translation>
    </message>
    <message>
        <source>Sending “%1”, %2 of %3</source>
        <translation>Enviando «%1», %2 de %3</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>All: %1</source>
        <translation>Todo: %1</translation>
    </message>
    <message>
        <source>Preparing one song: %1 of %2. Nothing is sent yet.</source>
        <translation>Preparando una canción: %1 de %2. Aún no se ha enviado nada.</translation>
    </message>
    <message>
        <source>Preparing %1 songs: %2 of %3. Nothing is sent yet.</source>
        <translation>Preparando %1 canciones: %2 de %3. Aún no se ha enviado nada.</translation>
    </message>
    <message>
        <source>An upload is running.</source>
        <translation>Hay un envío en curso.</translation>
    </message>
    <message>
        <source>Hand over songs first.</source>
        <translation>Primero pasa canciones al panel.</translation>
    </message>
    <message>
        <source>Sign in first.</source>
        <translation>Primero inicia sesión.</translation>
    </message>
    <message>
        <source>All songs are published.</source>
        <translation>Todas las canciones están publicadas.</translation>
    </message>
    <message>
        <source>Run the same command again.</source>
        <translation>Ejecute la misma orden de nuevo.</translation>
    </message>
    <message>
        <source>Run the same command with the songs that are not published to send the rest.</source>
        <translation>Ejecute la misma orden con las canciones no publicadas para enviar el resto.</translation>
    </message>
    <message>
        <source>Try again later.</source>
        <translation>Inténtelo de nuevo más tarde.</translation>
    </message>
    <message>
        <source>Choose one with --genre.</source>
        <translation>Elija uno con --genre.</translation>
    </message>
    <message>
        <source>Name it once.</source>
        <translation>Nómbrelo una sola vez.</translation>
    </message>
    <message>
        <source>Rename one of them.</source>
        <translation>Cambie el nombre de uno.</translation>
    </message>
    <message>
        <source>--skip-unreadable leaves it out.</source>
        <translation>--skip-unreadable lo omite.</translation>
    </message>
    <message>
        <source>Put it back, then run the same command again.</source>
        <translation>Devuélvalo a su sitio y ejecute la misma orden de nuevo.</translation>
    </message>
    <message>
        <source>Make room, or set TMPDIR to another folder.</source>
        <translation>Haga sitio o indique otra carpeta en TMPDIR.</translation>
    </message>
    <message>
        <source>Set TMPDIR to another folder.</source>
        <translation>Indique otra carpeta en TMPDIR.</translation>
    </message>
    <message>
        <source>--track-number sets it.</source>
        <translation>--track-number lo fija.</translation>
    </message>
    <message>
        <source>Look at your account page before you send it again.</source>
        <translation>Mire su página de cuenta antes de enviarla de nuevo.</translation>
    </message>
    <message>
        <source>Check ServerURL and this computer&apos;s clock.</source>
        <translation>Compruebe ServerURL y el reloj de este equipo.</translation>
    </message>
    <message>
        <source>xbrhost sign-in renews it.</source>
        <translation>xbrhost sign-in lo renueva.</translation>
    </message>
    <message>
        <source>xbrhost sign-in signs in.</source>
        <translation>xbrhost sign-in inicia la sesión.</translation>
    </message>
    <message>
        <source>--module names one.</source>
        <translation>--module indica uno.</translation>
    </message>
    <message>
        <source>Add it with %1.</source>
        <translation>Añádalo con %1.</translation>
    </message>
    <message>
        <source>Add them with %1.</source>
        <translation>Añádalos con %1.</translation>
    </message>
    <message>
        <source>The service asks to wait %2 before the next upload. “%1” was not taken.</source>
        <translation>El servicio pide esperar %2 antes del próximo envío. «%1» no se aceptó.</translation>
    </message>
    <message>
        <source>The service asks to wait %2 before the next upload. The album “%1” was not taken.</source>
        <translation>El servicio pide esperar %2 antes del próximo envío. El álbum «%1» no se aceptó.</translation>
    </message>
    <message>
        <source>Waiting for the keyring to be unlocked.</source>
        <translation>Esperando a que se desbloquee el llavero.</translation>
    </message>
    <message>
        <source>Waiting for the keyring to answer.</source>
        <translation>Esperando la respuesta del llavero.</translation>
    </message>
    <message>
        <source>The web browser could not be started: %1. Copy the address and open it in a browser.</source>
        <translation>No se ha podido iniciar el navegador web: %1. Copie la dirección y ábrala en un navegador.</translation>
    </message>
    <message>
        <source>The web browser could not be started: %1.</source>
        <translation>No se ha podido iniciar el navegador web: %1.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: this computer has no keyring.</source>
        <translation>Sesión iniciada como %1 hasta que termine el programa: este equipo no tiene llavero.</translation>
    </message>
    <message>
        <source>Not signed in: this computer has no keyring.</source>
        <translation>Sin iniciar sesión: este equipo no tiene llavero.</translation>
    </message>
    <message>
        <source>No keyring can be reached from here: nothing was removed.</source>
        <translation>No se puede acceder a ningún llavero desde aquí: no se ha eliminado nada.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: the keyring was not unlocked.</source>
        <translation>Sesión iniciada como %1 hasta que termine el programa: el llavero no se ha desbloqueado.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked: the stored sign-in cannot be read.</source>
        <translation>El llavero no se ha desbloqueado: no se puede leer la sesión guardada.</translation>
    </message>
    <message>
        <source>The keyring was not unlocked: the stored sign-in may still be there.</source>
        <translation>El llavero no se ha desbloqueado: puede que la sesión guardada siga ahí.</translation>
    </message>
    <message>
        <source>Signed in as %1, until the program ends: the keyring does not answer.</source>
        <translation>Sesión iniciada como %1 hasta que termine el programa: el llavero no responde.</translation>
    </message>
    <message>
        <source>The keyring does not answer: the stored sign-in cannot be read.</source>
        <translation>El llavero no responde: no se puede leer la sesión guardada.</translation>
    </message>
    <message>
        <source>The keyring does not answer: the stored sign-in may still be there.</source>
        <translation>El llavero no responde: puede que la sesión guardada siga ahí.</translation>
    </message>
    <message>
        <source>The service does not say who is signed in; it may not be %1.</source>
        <translation>El servicio no dice quién ha iniciado sesión; puede que no sea %1.</translation>
    </message>
    <message>
        <source>Signed in as %1, not as %2.</source>
        <translation>Sesión iniciada como %1, no como %2.</translation>
    </message>
    <message>
        <source>A sign-in is stored, but the service could not be asked: %1.</source>
        <translation>Hay una sesión guardada, pero no se ha podido preguntar al servicio: %1.</translation>
    </message>
    <message>
        <source>Not signed in: the service sent an answer that cannot be used.</source>
        <translation>Sin iniciar sesión: el servicio ha enviado una respuesta que no se puede usar.</translation>
    </message>
    <message>
        <source>Not signed in.</source>
        <translation>Sin iniciar sesión.</translation>
    </message>
    <message>
        <source>This is not a link back: it begins with “%1:”.</source>
        <translation>Esto no es un enlace de vuelta: empieza por «%1:».</translation>
    </message>
    <message>
        <source>This link back belongs to another sign-in. Open the address again.</source>
        <translation>Este enlace de vuelta es de otro inicio de sesión. Abra la dirección otra vez.</translation>
    </message>
    <message>
        <source>Nobody was signed in.</source>
        <translation>Nadie había iniciado sesión.</translation>
    </message>
    <message>
        <source>cannot sign out</source>
        <translation>no puede cerrar la sesión</translation>
    </message>
    <message>
        <source>Unlock it, then run the same command again.</source>
        <translation>Desbloquéelo y vuelva a ejecutar la misma orden.</translation>
    </message>
    <message>
        <source>xbrhost sign-out signs out.</source>
        <translation>xbrhost sign-out cierra la sesión.</translation>
    </message>
    <message>
        <source>it answered %1</source>
        <translation>respondió %1</translation>
    </message>
    <message>
        <source>%1 is not set up: %2 is not encrypted, and only this computer may be reached that way.</source>
        <translation>%1 no está configurado: %2 no está cifrado, y solo se puede acceder así a este equipo.</translation>
    </message>
    <message>
        <source>--again sends them again.</source>
        <translation>--again las envía otra vez.</translation>
    </message>
    <message>
        <source>%1 of %2 songs were published from this computer before.</source>
        <translation>%1 de %2 canciones ya se publicaron desde este equipo.</translation>
    </message>
    <message>
        <source>“%1” was published from this computer on %2.</source>
        <translation>«%1» se publicó desde este equipo el %2.</translation>
    </message>
</context>
<context>
    <name>xbr::host::AboutDialog</name>
    <message>
        <source>About xbrhost</source>
        <translation>Acerca de xbrhost</translation>
    </message>
    <message>
        <source>Publishes finished songs through the modules of a workstation.</source>
        <translation>Publica canciones terminadas mediante los módulos de una estación de audio.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Cerrar</translation>
    </message>
    <message>
        <source>Co&amp;py</source>
        <translation>Co&amp;piar</translation>
    </message>
    <message>
        <source>Copy the versions</source>
        <translation>Copiar las versiones</translation>
    </message>
</context>
<context>
    <name>xbr::host::DesktopNotification</name>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>xbr::host::DockTitle</name>
    <message>
        <source>Float or dock</source>
        <translation>Separar o acoplar</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ocultar</translation>
    </message>
</context>
<context>
    <name>xbr::host::EmptyState</name>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>&amp;Añadir canciones…</translation>
    </message>
    <message>
        <source>Drop your finished songs here</source>
        <translation>Suelte aquí sus canciones terminadas</translation>
    </message>
    <message>
        <source>WAV, AIFF, FLAC, MP3 or Ogg, one by one or a whole folder</source>
        <translation>WAV, AIFF, FLAC, MP3 u Ogg, una a una o una carpeta entera</translation>
    </message>
</context>
<context>
    <name>xbr::host::FileSelector</name>
    <message>
        <source>All usable files</source>
        <translation>Todos los archivos utilizables</translation>
    </message>
    <message>
        <source>Choose Files</source>
        <translation>Elegir archivos</translation>
    </message>
</context>
<context>
    <name>xbr::host::GadgetDock</name>
    <message>
        <source>The form of this panel cannot be shown.</source>
        <translation>No se puede mostrar el formulario de este panel.</translation>
    </message>
</context>
<context>
    <name>xbr::host::HandOver</name>
    <message numerus="yes">
        <source>It holds edits of %n song(s) that have not been sent.</source>
        <translation>
            <numerusform>Contiene cambios de %n canción que no se han enviado.</numerusform>
            <numerusform>Contiene cambios de %n canciones que no se han enviado.</numerusform>
        </translation>
    </message>
    <message>
        <source>It holds the results of the last upload.</source>
        <translation>Contiene los resultados del último envío.</translation>
    </message>
    <message>
        <source>Replace the songs in the panel?</source>
        <translation>¿Reemplazar las canciones del panel?</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Conservar</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Reemplazar</translation>
    </message>
    <message>
        <source>The other songs can be handed over without them.</source>
        <translation>Las demás canciones se pueden pasar sin ellas.</translation>
    </message>
    <message>
        <source>Leave out songs?</source>
        <translation>¿Omitir canciones?</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Leave out</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) handed over to the panel; nothing is sent yet. Check the details there, then upload.</source>
        <translation>
            <numerusform>%n canción pasada al panel; aún no se ha enviado nada. Revisa allí los datos y súbela.</numerusform>
            <numerusform>%n canciones pasadas al panel; aún no se ha enviado nada. Revisa allí los datos y súbelas.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) lack details that the service needs. “%2”: %3.</source>
        <translation>
            <numerusform>A %1 de %n canción le faltan datos que el servicio necesita. «%2»: %3.</numerusform>
            <numerusform>A %1 de %n canciones les faltan datos que el servicio necesita. «%2»: %3.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::Header</name>
    <message>
        <source>Songs</source>
        <translation>Canciones</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Ninguna todavía</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s)</source>
        <translation>
            <numerusform>%n canción</numerusform>
            <numerusform>%n canciones</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::KeyringSheet</name>
    <message>
        <source>Keyring</source>
        <translation>Llavero</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
</context>
<context>
    <name>xbr::host::MainWindow</name>
    <message>
        <source>Songs – xbrhost</source>
        <translation>Canciones – xbrhost</translation>
    </message>
    <message>
        <source>Add Songs</source>
        <translation>Añadir canciones</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Some songs are still being read; try again in a moment.</source>
        <translation>Algunas canciones aún se están leyendo; inténtelo de nuevo en un momento.</translation>
    </message>
    <message>
        <source>Add songs first.</source>
        <translation>Añada primero canciones.</translation>
    </message>
    <message>
        <source>Wait until the upload that runs has ended.</source>
        <translation>Espere a que termine la subida en curso.</translation>
    </message>
    <message>
        <source>&amp;Stop and Quit</source>
        <translation>&amp;Detener y salir</translation>
    </message>
    <message>
        <source>&amp;Keep Uploading</source>
        <translation>&amp;Seguir subiendo</translation>
    </message>
    <message>
        <source>Hands the selected songs, or all, over to the panel; nothing is sent yet</source>
        <translation>Pasa las canciones seleccionadas, o todas, al panel; aún no se envía nada</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) in the panel have edits that were not sent; they would be lost. The list comes back at the next start.</source>
        <translation>
            <numerusform>%n canción del panel tiene cambios sin enviar; se perderían. La lista vuelve en el próximo inicio.</numerusform>
            <numerusform>%n canciones del panel tienen cambios sin enviar; se perderían. La lista vuelve en el próximo inicio.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stop the upload?</source>
        <translation>¿Detener el envío?</translation>
    </message>
    <message>
        <source>Quit without publishing?</source>
        <translation>¿Salir sin publicar?</translation>
    </message>
    <message>
        <source>&amp;Keep Editing</source>
        <translation>&amp;Seguir editando</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelMemory</name>
    <message>
        <source>Track number</source>
        <translation>Número de pista</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) removed from the panel.</source>
        <translation>
            <numerusform>%n canción quitada del panel.</numerusform>
            <numerusform>%n canciones quitadas del panel.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 changed in %n song(s).</source>
        <translation>
            <numerusform>%1 ha cambiado en %n canción.</numerusform>
            <numerusform>%1 ha cambiado en %n canciones.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::PanelNotices</name>
    <message numerus="yes">
        <source>%1 of %n song(s) are published; the rest would not be.</source>
        <translation>
            <numerusform>%1 de %n canción está publicada; el resto no lo estaría.</numerusform>
            <numerusform>%1 de %n canciones están publicadas; el resto no lo estaría.</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1” is being sent.</source>
        <translation>«%1» se está enviando.</translation>
    </message>
    <message>
        <source>Published %1</source>
        <translation>Publicada el %1</translation>
    </message>
    <message>
        <source>Published %1 as %2</source>
        <translation>Publicada el %1 como %2</translation>
    </message>
    <message>
        <source>Send without these details?</source>
        <translation>¿Enviar sin estos datos?</translation>
    </message>
    <message>
        <source>“%1”: %2. The service will probably refuse it. Nothing is sent yet.</source>
        <translation>«%1»: %2. Es probable que el servicio la rechace. Aún no se ha enviado nada.</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message>
        <source>Send &amp;Anyway</source>
        <translation>Enviar de &amp;todos modos</translation>
    </message>
    <message>
        <source>Publish again?</source>
        <translation>¿Publicar de nuevo?</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Publish &amp;Again</source>
        <translation>Publicar de &amp;nuevo</translation>
    </message>
    <message>
        <source>&amp;Leave them out</source>
        <translation>&amp;Omitirlas</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) were published from this computer before.</source>
        <translation>
            <numerusform>%1 de %n canción ya se publicó desde este equipo.</numerusform>
            <numerusform>%1 de %n canciones ya se publicaron desde este equipo.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Reintentar</translation>
    </message>
    <message>
        <source>A&amp;ccount page</source>
        <translation>Página de la &amp;cuenta</translation>
    </message>
    <message>
        <source>&amp;Leave out</source>
        <translation>&amp;Omitir</translation>
    </message>
    <message>
        <source>Sign &amp;in</source>
        <translation>&amp;Iniciar sesión</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressRow</name>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>End the upload; what has arrived stays published</source>
        <translation>Terminar el envío; lo que ha llegado sigue publicado</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
</context>
<context>
    <name>xbr::host::ProgressSheet</name>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Working on</source>
        <translation>Trabajando en</translation>
    </message>
    <message>
        <source>Stopping…</source>
        <translation>Deteniendo…</translation>
    </message>
</context>
<context>
    <name>xbr::host::Selection</name>
    <message>
        <source>“%1” is on its way and cannot be changed now.</source>
        <translation>«%1» está en camino y no se puede cambiar ahora.</translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) selected: an edit changes all of them.</source>
        <translation>
            <numerusform>%n canción seleccionada: un cambio las afecta a todas.</numerusform>
            <numerusform>%n canciones seleccionadas: un cambio las afecta a todas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>≠ %n value(s)</source>
        <translation>
            <numerusform>≠ %n valor</numerusform>
            <numerusform>≠ %n valores</numerusform>
        </translation>
    </message>
    <message>
        <source>same</source>
        <translation>igual</translation>
    </message>
    <message numerus="yes">
        <source>%n different value(s): %1</source>
        <translation>
            <numerusform>%n valor distinto: %1</numerusform>
            <numerusform>%n valores distintos: %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>xbr::host::SignInStrip</name>
    <message>
        <source>Copy the address</source>
        <translation>Copiar la dirección</translation>
    </message>
    <message>
        <source>Link back</source>
        <translation>Enlace de vuelta</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>Continuar</translation>
    </message>
    <message>
        <source>Nothing happened?</source>
        <translation>¿No ha pasado nada?</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copiado</translation>
    </message>
</context>
<context>
    <name>xbr::host::Song</name>
    <message>
        <source>%1 bit</source>
        <translation>%1 bits</translation>
    </message>
    <message>
        <source>%1 kbit/s</source>
        <translation>%1 kbit/s</translation>
    </message>
    <message>
        <source>%1 kHz</source>
        <translation>%1 kHz</translation>
    </message>
    <message>
        <source>Audio files</source>
        <translation>Archivos de audio</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongCommands</name>
    <message numerus="yes">
        <source>%n song(s) added.</source>
        <translation>
            <numerusform>%n canción añadida.</numerusform>
            <numerusform>%n canciones añadidas.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) added; %1 were in the list already.</source>
        <translation>
            <numerusform>%n canción añadida; %1 ya en la lista.</numerusform>
            <numerusform>%n canciones añadidas; %1 ya en la lista.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) removed from the list; the files stay.</source>
        <translation>
            <numerusform>%n canción quitada de la lista; el archivo se queda.</numerusform>
            <numerusform>%n canciones quitadas de la lista; los archivos se quedan.</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Mostrar</translation>
    </message>
    <message numerus="yes">
        <source>%1 of %n song(s) need a look before they can be published. %2</source>
        <translation>
            <numerusform>%1 de %n canción necesita una revisión antes de publicarse. %2</numerusform>
            <numerusform>%1 de %n canciones necesitan una revisión antes de publicarse. %2</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time.</source>
        <translation>
            <numerusform>%n canción de la última vez.</numerusform>
            <numerusform>%n canciones de la última vez.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n song(s) from last time; %1 no longer there.</source>
        <translation>
            <numerusform>%n canción de la última vez; %1 ya no está.</numerusform>
            <numerusform>%n canciones de la última vez; %1 ya no está.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n file(s)</source>
        <translation>
            <numerusform>%n archivo</numerusform>
            <numerusform>%n archivos</numerusform>
        </translation>
    </message>
    <message>
        <source>Start &amp;Empty</source>
        <translation>Empezar &amp;vacío</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongListModel</name>
    <message>
        <source>Reading…</source>
        <translation>Leyendo…</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Artista</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Álbum</translation>
    </message>
    <message>
        <source>Album artist</source>
        <translation>Artista del álbum</translation>
    </message>
    <message>
        <source>Genre</source>
        <translation>Género</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Track number</source>
        <translation>Número de pista</translation>
    </message>
    <message>
        <source>Mark</source>
        <translation>Marca</translation>
    </message>
</context>
<context>
    <name>xbr::host::SongView</name>
    <message>
        <source>Songs</source>
        <translation>Canciones</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>Columnas</translation>
    </message>
</context>
<context>
    <name>xbr::host::StatusLine</name>
    <message>
        <source>Status</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Ready.</source>
        <translation>Listo.</translation>
    </message>
    <message>
        <source>Show each song</source>
        <translation>Mostrar cada canción</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowActions</name>
    <message>
        <source>Menus</source>
        <translation>Menús</translation>
    </message>
    <message>
        <source>&amp;Publish</source>
        <translation>&amp;Publicar</translation>
    </message>
    <message>
        <source>&amp;About xbrhost</source>
        <translation>&amp;Acerca de xbrhost</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>&amp;Add Songs…</source>
        <translation>&amp;Añadir canciones…</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Add songs (%1)</source>
        <translation>Añadir canciones (%1)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Edit Cell</source>
        <translation>&amp;Editar celda</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Quitar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Remove the selected songs from the list; the files stay</source>
        <translation>Quitar de la lista las canciones seleccionadas; los archivos se conservan</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>S&amp;ubir</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Bajar</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Next Area</source>
        <translation>Área &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Appearance</source>
        <translation>&amp;Apariencia</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Restablecer disposición</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Como el &amp;escritorio</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Claro</translation>
    </message>
    <message>
        <source>Da&amp;rk</source>
        <translation>&amp;Oscuro</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Deshacer</translation>
    </message>
    <message>
        <source>Red&amp;o</source>
        <translation>&amp;Rehacer</translation>
    </message>
    <message>
        <source>&amp;Next Problem</source>
        <translation>Problema &amp;siguiente</translation>
    </message>
    <message>
        <source>&amp;Previous Problem</source>
        <translation>Problema &amp;anterior</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Detener</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>&amp;Reintentar</translation>
    </message>
</context>
<context>
    <name>xbr::host::WindowFront</name>
    <message>
        <source>%1, border %2.%3</source>
        <translation>%1, interfaz %2.%3</translation>
    </message>
    <message>
        <source>The browser&apos;s answer to a sign-in cannot be received: %1.</source>
        <translation>No se puede recibir la respuesta del navegador al iniciar sesión: %1.</translation>
    </message>
</context>
</TS>

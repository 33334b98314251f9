<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>brindlex</name>
    <message>
        <source>User authorization pending...</source>
        <translation>A aguardar a autorização...</translation>
    </message>
    <message>
        <source>Sign in on the page that has opened in your web browser, then come back here. If no page has opened, choose &quot;Retry&quot;.</source>
        <translation>Inicie sessão na página que se abriu no seu navegador e depois volte aqui. Se nenhuma página se abriu, escolha «Tentar de novo».</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Getting access token...</source>
        <translation>A obter o token de acesso...</translation>
    </message>
    <message>
        <source>You are now connected to Brindlex.</source>
        <translation>Está agora ligado ao Brindlex.</translation>
    </message>
    <message>
        <source>Attempt to connect with Brindlex failed!</source>
        <translation>Não foi possível ligar ao Brindlex!</translation>
    </message>
    <message>
        <source>Check your internet connection, then choose &quot;Retry&quot;.</source>
        <translation>Verifique a sua ligação à Internet e escolha «Tentar de novo».</translation>
    </message>
    <message>
        <source>Refreshing access token...</source>
        <translation>A renovar o token de acesso...</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Tentar de novo</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>Connect to Brindlex</source>
        <translation>Ligar ao Brindlex</translation>
    </message>
    <message>
        <source>Publish your music with Brindlex</source>
        <translation>Publique a sua música com o Brindlex</translation>
    </message>
    <message>
        <source>Sign in to send finished songs straight from your project. Your web browser opens for the sign-in.</source>
        <translation>Inicie sessão para enviar músicas terminadas diretamente do seu projeto. O seu navegador abre-se para isso.</translation>
    </message>
    <message>
        <source>&amp;Connect to Brindlex</source>
        <translation>&amp;Ligar ao Brindlex</translation>
    </message>
    <message>
        <source>Brindlex Client</source>
        <translation>Cliente Brindlex</translation>
    </message>
    <message>
        <source>Signed in as</source>
        <translation>Sessão iniciada como</translation>
    </message>
    <message>
        <source>Opens your account page in the web browser</source>
        <translation>Abre a página da sua conta no navegador</translation>
    </message>
    <message>
        <source>&amp;DISCONNECT</source>
        <translation>&amp;DESCONECTAR</translation>
    </message>
    <message>
        <source>Signs out of Brindlex on this computer</source>
        <translation>Termina a sessão do Brindlex neste computador</translation>
    </message>
    <message>
        <source>Trac&amp;ks</source>
        <translation>Fai&amp;xas</translation>
    </message>
    <message>
        <source>&amp;Singles</source>
        <translation>&amp;Singles</translation>
    </message>
    <message>
        <source>Each track becomes a release of its own</source>
        <translation>Cada faixa torna-se um lançamento próprio</translation>
    </message>
    <message>
        <source>Al&amp;bum</source>
        <translation>Ál&amp;bum</translation>
    </message>
    <message>
        <source>All tracks become one release</source>
        <translation>Todas as faixas formam um só lançamento</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Faixas</translation>
    </message>
    <message>
        <source>Drop WAV, FLAC or MP3 files here, or choose them with &quot;Add Tracks&quot;.</source>
        <translation>Largue aqui ficheiros WAV, FLAC ou MP3, ou escolha-os com «Adicionar faixas».</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>&amp;Add Tracks</source>
        <translation>&amp;Adicionar faixas</translation>
    </message>
    <message>
        <source>&amp;Remove all</source>
        <translation>&amp;Remover tudo</translation>
    </message>
    <message>
        <source>No track selected</source>
        <translation>Nenhuma faixa selecionada</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>Música</translation>
    </message>
    <message>
        <source>S&amp;ong title</source>
        <translation>Títu&amp;lo da música</translation>
    </message>
    <message>
        <source>Required: the song has no title</source>
        <translation>Obrigatório: a música não tem título</translation>
    </message>
    <message>
        <source>Required</source>
        <translation>Obrigatório</translation>
    </message>
    <message>
        <source>Song art&amp;ist</source>
        <translation>Art&amp;ista da música</translation>
    </message>
    <message>
        <source>Required: the song has no artist</source>
        <translation>Obrigatório: a música não tem artista</translation>
    </message>
    <message>
        <source>Track &amp;number</source>
        <translation>&amp;Número da faixa</translation>
    </message>
    <message>
        <source>Release</source>
        <translation>Lançamento</translation>
    </message>
    <message>
        <source>Album &amp;title</source>
        <translation>&amp;Título do álbum</translation>
    </message>
    <message>
        <source>Required: the release has no title</source>
        <translation>Obrigatório: o lançamento não tem título</translation>
    </message>
    <message>
        <source>Albu&amp;m artist</source>
        <translation>Artista do álbu&amp;m</translation>
    </message>
    <message>
        <source>Required: the release has no artist</source>
        <translation>Obrigatório: o lançamento não tem artista</translation>
    </message>
    <message>
        <source>&amp;Genre</source>
        <translation>&amp;Género</translation>
    </message>
    <message>
        <source>Type to find</source>
        <translation>Escreva para procurar</translation>
    </message>
    <message>
        <source>Required: the release has no genre</source>
        <translation>Obrigatório: o lançamento não tem género</translation>
    </message>
    <message>
        <source>&amp;Upload</source>
        <translation>&amp;Enviar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>Missing Information</source>
        <translation>Informações em falta</translation>
    </message>
    <message>
        <source>Preparing Brindlex Upload</source>
        <translation>A preparar o envio para o Brindlex</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Upload to Brindlex</source>
        <translation>Enviar para o Brindlex</translation>
    </message>
    <message>
        <source>Reload All</source>
        <translation>Recarregar tudo</translation>
    </message>
    <message>
        <source>Pub&amp;lish</source>
        <translation>P&amp;ublicar</translation>
    </message>
    <message>
        <source>Shows the songs that you publish</source>
        <translation>Mostra as músicas que publica</translation>
    </message>
    <message>
        <source>Ne&amp;ws</source>
        <translation>N&amp;otícias</translation>
    </message>
    <message>
        <source>Shows the news of Brindlex</source>
        <translation>Mostra as notícias do Brindlex</translation>
    </message>
    <message>
        <source>Read more</source>
        <translation>Ler mais</translation>
    </message>
    <message>
        <source>Opens the whole article in the web browser</source>
        <translation>Abre o artigo completo no navegador</translation>
    </message>
    <message>
        <source>News</source>
        <translation>Notícias</translation>
    </message>
    <message>
        <source>Loading the news...</source>
        <translation>A carregar as notícias...</translation>
    </message>
    <message>
        <source>There is no news at the moment.</source>
        <translation>De momento não há notícias.</translation>
    </message>
    <message>
        <source>The news could not be loaded. Check your internet connection, then try again.</source>
        <translation>Não foi possível carregar as notícias. Verifique a ligação à Internet e tente de novo.</translation>
    </message>
</context>
</TS>
